#include "Arbeit.h"
#include "Berichte.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "Drucklauf.h"
#include "Report.h"
#include "Screens.h"
#include "ValueLabel.h"
#include "modArbeit.h"

// The work sheet of a member on paper.

namespace modArbeit {

namespace {

/// Hours that a failed booking never got are none on paper.
Value stundenWieGezeigt(const DataTable& grid, int row) {
    const QString text = grid.cellText(row, 2);
    return text.isEmpty() ? Value() : Value(CDbl(text));
}

void schreibeZeile(ErrorTail& step, Recordset& zeile, const DataTable& grid, int row) {
    step([&] { zeile.Collect(u"ArbNr"_qs, CLng(grid.cell(row, 0))); });
    step([&] { zeile.Collect(u"GelStd"_qs, stundenWieGezeigt(grid, row)); });
    step([&] { zeile.Collect(u"Datum"_qs, grid.cell(row, 3)); });
}

void richteEin(ErrorTail& step, Report& report) {
    const Arbeit& form = screen<Arbeit>();
    const auto caption = [&](const QString& section, const QString& name, const QString& text) {
        step([&] { report.control(section, name).setCaption(text); });
    };
    const auto bind = [&](const QString& name, const QString& field) {
        step([&] { report.control(u"Section1"_qs, name).setDataField(field); });
    };
    caption(u"Section2"_qs, u"lblUebSchrift"_qs,
            Berichte::titelArbListe() + u' ' + form.cboArbJahr->currentText());
    // The sums are those on the screen, whatever the rows come to.
    caption(u"Section5"_qs, u"lblNName"_qs, form.lblNName->text());
    caption(u"Section5"_qs, u"lblVName"_qs, form.lblVName->text());
    caption(u"Section5"_qs, u"lblMitglNr"_qs, form.lblKNr->text());
    caption(u"Section5"_qs, u"lblGesStd"_qs, form.lblGesStd->text());
    caption(u"Section5"_qs, u"lblPflStd"_qs, form.lblPflStd->text());
    caption(u"Section5"_qs, u"lblSollHaben"_qs, form.lblErgStd->text());
    bind(u"Text1"_qs, u"ArbNr"_qs);
    bind(u"Text2"_qs, u"GelStd"_qs);
    bind(u"Text3"_qs, u"Datum"_qs);
}

} // namespace

void DruckeArbListe(const QString& wort) {
    Arbeit& form = screen<Arbeit>();
    drucke({.modul = u"modArbeit"_qs,
            .routine = u"DruckeArbListe"_qs,
            .aufrufer = form,
            .grid = *form.tblArbStd,
            .tabelle = u"Druck_ArbListe"_qs,
            .report = &Berichte::rpt_ArbListe,
            .schreibeZeile = &schreibeZeile,
            .richteEin = &richteEin},
           wort);
}

} // namespace modArbeit
