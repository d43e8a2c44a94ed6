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

using namespace Qt::StringLiterals;

// Prints the work sheet of a member.

namespace modArbeit {

namespace {

/// Null if the grid shows no hours: a booking that failed halfway may have none.
Value stundenWieGezeigt(const DataTable& grid, int row) {
    const QString text = grid.cellText(row, 2);
    return text.isEmpty() ? Value() : Value(CDbl(text));
}

void schreibeZeile(ErrorTail& step, Recordset& zeile, const DataTable& grid, int row) {
    step([&] { zeile.Collect(u"ArbNr"_s, CLng(grid.cell(row, 0))); });
    step([&] { zeile.Collect(u"GelStd"_s, stundenWieGezeigt(grid, row)); });
    step([&] { zeile.Collect(u"Datum"_s, grid.cell(row, 3)); });
}

void richteEin(ErrorTail& step, Report& report) {
    const Arbeit& screen = the<Arbeit>();
    const auto caption = [&](const QString& section, const QString& name, const QString& text) {
        step([&] { report.control(section, name).setCaption(text); });
    };
    const auto bind = [&](const QString& name, const QString& field) {
        step([&] { report.control(u"Section1"_s, name).setDataField(field); });
    };
    caption(u"Section2"_s, u"lblUebSchrift"_s,
            Berichte::titelArbListe() + u' ' + screen.cboArbJahr->currentText());
    // The sums are taken from the screen, not added up from the rows.
    caption(u"Section5"_s, u"lblNName"_s, screen.lblNName->text());
    caption(u"Section5"_s, u"lblVName"_s, screen.lblVName->text());
    caption(u"Section5"_s, u"lblMitglNr"_s, screen.lblKNr->text());
    caption(u"Section5"_s, u"lblGesStd"_s, screen.lblGesStd->text());
    caption(u"Section5"_s, u"lblPflStd"_s, screen.lblPflStd->text());
    caption(u"Section5"_s, u"lblSollHaben"_s, screen.lblErgStd->text());
    bind(u"Text1"_s, u"ArbNr"_s);
    bind(u"Text2"_s, u"GelStd"_s);
    bind(u"Text3"_s, u"Datum"_s);
}

} // namespace

void DruckeArbListe(const QString& wort) {
    Arbeit& screen = the<Arbeit>();
    drucke({.modul = u"modArbeit"_s,
            .routine = u"DruckeArbListe"_s,
            .aufrufer = screen,
            .grid = *screen.tblArbStd,
            .tabelle = u"Druck_ArbListe"_s,
            .report = &Berichte::rpt_ArbListe,
            .schreibeZeile = &schreibeZeile,
            .richteEin = &richteEin},
           wort);
}

} // namespace modArbeit
