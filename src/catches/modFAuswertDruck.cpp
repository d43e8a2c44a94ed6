#include "Berichte.h"
#include "ComboBox.h"
#include "Drucklauf.h"
#include "Fangauswertung.h"
#include "Screens.h"
#include "ValueLabel.h"
#include "modFAuswert.h"

using namespace Qt::StringLiterals;

// Prints the catch list.

namespace modFAuswert {

namespace {

QString oderAlle(bool chosen, const QString& text) { return chosen ? text : u"alle"_s; }

void richteEin(Report& report) {
    const Fangauswertung& screen = the<Fangauswertung>();
    const QString fisch = screen.cboFArt->currentText();
    const QString gewaesser = screen.cboGName->currentText();
    // Year and month count if their filter is ticked, fish and water if their list has a choice.
    report.control(u"Section2"_s, u"lblFJahr"_s).caption =
        oderAlle(screen.cboFJahr->isEnabled(), screen.cboFJahr->currentText());
    report.control(u"Section2"_s, u"lblFMonat"_s).caption =
        oderAlle(screen.cboFMonat->isEnabled(), screen.cboFMonat->currentText());
    report.control(u"Section5"_s, u"SumAnzahl"_s).dataField = u"Anzahl"_s;
    report.control(u"Section5"_s, u"SumGewicht"_s).dataField = u"Gewicht"_s;
    report.control(u"Section5"_s, u"lblGefDS"_s).caption = screen.lblGefDS->text();
    report.control(u"Section5"_s, u"lblFischart"_s).caption = oderAlle(!fisch.isEmpty(), fisch);
    report.control(u"Section5"_s, u"lblGewässer"_s).caption = oderAlle(!gewaesser.isEmpty(), gewaesser);
}

} // namespace

void DruckeFangListe(const QString& wort) {
    drucke({.modul = u"modFAuswert"_s,
            .routine = u"DruckeFangListe"_s,
            .aufrufer = the<Fangauswertung>(),
            .grid = *the<Fangauswertung>().tblFAusw,
            .tabelle = u"Druck_Fangliste"_s,
            .spalten = {{0, u"FangNr"_s, &ganzzahl},
                        {1, u"Name"_s},
                        {2, u"Gewässer"_s},
                        {3, u"Monat"_s},
                        {4, u"Fangjahr"_s, &ganzzahl},
                        {5, u"Anzahl"_s, &ganzzahl},
                        {6, u"Gewicht"_s, &ganzzahl}},
            .report = &Berichte::rpt_Fangliste,
            .richteEin = &richteEin},
           wort);
}

} // namespace modFAuswert
