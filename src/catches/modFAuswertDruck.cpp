#include "Berichte.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "Drucklauf.h"
#include "Fangauswertung.h"
#include "Report.h"
#include "Screens.h"
#include "ValueLabel.h"
#include "modFAuswert.h"

using namespace Qt::StringLiterals;

// Prints the catch list.

namespace modFAuswert {

namespace {

void schreibeZeile(ErrorTail& step, Recordset& zeile, const DataTable& grid, int row) {
    const auto number = [&](int column) { return Value(CLng(grid.cell(row, column))); };
    step([&] { zeile.Collect(u"FangNr"_s, number(0)); });
    step([&] { zeile.Collect(u"Name"_s, grid.cellText(row, 1)); });
    step([&] { zeile.Collect(u"Gewässer"_s, grid.cellText(row, 2)); });
    step([&] { zeile.Collect(u"Monat"_s, grid.cellText(row, 3)); });
    step([&] { zeile.Collect(u"FangJahr"_s, number(4)); });
    step([&] { zeile.Collect(u"Anzahl"_s, number(5)); });
    step([&] { zeile.Collect(u"Gewicht"_s, number(6)); });
}

QString oderAlle(bool chosen, const QString& text) { return chosen ? text : u"alle"_s; }

void richteEin(ErrorTail& step, Report& report) {
    const Fangauswertung& screen = the<Fangauswertung>();
    const auto caption = [&](const QString& section, const QString& name, const QString& text) {
        step([&] { report.control(section, name).setCaption(text); });
    };
    const auto bind = [&](const QString& section, const QString& name, const QString& field) {
        step([&] { report.control(section, name).setDataField(field); });
    };
    // Year and month count if their filter is ticked, fish and water if their list has a choice.
    caption(u"Section2"_s, u"lblFJahr"_s,
            oderAlle(screen.cboFJahr->isEnabled(), screen.cboFJahr->currentText()));
    caption(u"Section2"_s, u"lblFMonat"_s,
            oderAlle(screen.cboFMonat->isEnabled(), screen.cboFMonat->currentText()));
    bind(u"Section5"_s, u"SumAnzahl"_s, u"Anzahl"_s);
    bind(u"Section5"_s, u"SumGewicht"_s, u"Gewicht"_s);
    caption(u"Section5"_s, u"lblGefDS"_s, screen.lblGefDS->text());
    caption(u"Section5"_s, u"lblFischart"_s,
            oderAlle(!screen.cboFArt->currentText().isEmpty(), screen.cboFArt->currentText()));
    caption(u"Section5"_s, u"lblGewässer"_s,
            oderAlle(!screen.cboGName->currentText().isEmpty(), screen.cboGName->currentText()));
    const QString fields[] = {u"FangNr"_s,   u"Name"_s,   u"Gewässer"_s, u"Monat"_s,
                              u"Fangjahr"_s, u"Anzahl"_s, u"Gewicht"_s};
    int number = 0;
    for (const QString& field : fields) bind(u"Section1"_s, u"Text%1"_s.arg(++number), field);
}

} // namespace

void DruckeFangListe(const QString& wort) {
    Fangauswertung& screen = the<Fangauswertung>();
    drucke({.modul = u"modFAuswert"_s,
            .routine = u"DruckeFangListe"_s,
            .aufrufer = screen,
            .grid = *screen.tblFAusw,
            .tabelle = u"Druck_Fangliste"_s,
            .report = &Berichte::rpt_Fangliste,
            .schreibeZeile = &schreibeZeile,
            .richteEin = &richteEin},
           wort);
}

} // namespace modFAuswert
