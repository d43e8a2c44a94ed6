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

// The catch list on paper.

namespace modFAuswert {

namespace {

void schreibeZeile(ErrorTail& step, Recordset& zeile, const DataTable& grid, int row) {
    const auto number = [&](int column) { return Value(CLng(grid.cell(row, column))); };
    step([&] { zeile.Collect(u"FangNr"_qs, number(0)); });
    step([&] { zeile.Collect(u"Name"_qs, grid.cellText(row, 1)); });
    step([&] { zeile.Collect(u"Gewässer"_qs, grid.cellText(row, 2)); });
    step([&] { zeile.Collect(u"Monat"_qs, grid.cellText(row, 3)); });
    step([&] { zeile.Collect(u"FangJahr"_qs, number(4)); });
    step([&] { zeile.Collect(u"Anzahl"_qs, number(5)); });
    step([&] { zeile.Collect(u"Gewicht"_qs, number(6)); });
}

QString oderAlle(bool chosen, const QString& text) { return chosen ? text : u"alle"_qs; }

void richteEin(ErrorTail& step, Report& report) {
    const Fangauswertung& form = screen<Fangauswertung>();
    const auto caption = [&](const QString& section, const QString& name, const QString& text) {
        step([&] { report.control(section, name).setCaption(text); });
    };
    const auto bind = [&](const QString& section, const QString& name, const QString& field) {
        step([&] { report.control(section, name).setDataField(field); });
    };
    // Year and month go by the tick, kind of fish and water by what stands in their lists.
    caption(u"Section2"_qs, u"lblFJahr"_qs,
            oderAlle(form.cboFJahr->isEnabled(), form.cboFJahr->currentText()));
    caption(u"Section2"_qs, u"lblFMonat"_qs,
            oderAlle(form.cboFMonat->isEnabled(), form.cboFMonat->currentText()));
    bind(u"Section5"_qs, u"SumAnzahl"_qs, u"Anzahl"_qs);
    bind(u"Section5"_qs, u"SumGewicht"_qs, u"Gewicht"_qs);
    caption(u"Section5"_qs, u"lblGefDS"_qs, form.lblGefDS->text());
    caption(u"Section5"_qs, u"lblFischart"_qs,
            oderAlle(!form.cboFArt->currentText().isEmpty(), form.cboFArt->currentText()));
    caption(u"Section5"_qs, u"lblGewässer"_qs,
            oderAlle(!form.cboGName->currentText().isEmpty(), form.cboGName->currentText()));
    const QString fields[] = {u"FangNr"_qs,   u"Name"_qs,   u"Gewässer"_qs, u"Monat"_qs,
                              u"Fangjahr"_qs, u"Anzahl"_qs, u"Gewicht"_qs};
    int number = 0;
    for (const QString& field : fields) bind(u"Section1"_qs, u"Text%1"_qs.arg(++number), field);
}

} // namespace

void DruckeFangListe(const QString& wort) {
    Fangauswertung& form = screen<Fangauswertung>();
    drucke({.modul = u"modFAuswert"_qs,
            .routine = u"DruckeFangListe"_qs,
            .aufrufer = form,
            .grid = *form.tblFAusw,
            .tabelle = u"Druck_Fangliste"_qs,
            .report = &Berichte::rpt_Fangliste,
            .schreibeZeile = &schreibeZeile,
            .richteEin = &richteEin},
           wort);
}

} // namespace modFAuswert
