#include "Arbeit.h"
#include "Berichte.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "Drucklauf.h"
#include "Screens.h"
#include "ValueLabel.h"
#include "modArbeit.h"

using namespace Qt::StringLiterals;

// Prints the work sheet of a member.

namespace modArbeit {

namespace {

/// Null if the grid shows no hours: a booking that failed halfway may have none.
Value stundenWieGezeigt(const DataTable& grid, int row, int column) {
    const QString text = grid.cellText(row, column);
    return text.isEmpty() ? Value() : Value(CDbl(text));
}

Value tag(const DataTable& grid, int row, int column) { return grid.cell(row, column); }

void richteEin(Report& report) {
    const Arbeit& screen = the<Arbeit>();
    report.control(u"Section2"_s, u"lblUebSchrift"_s).caption =
        Berichte::titelArbListe() + u' ' + screen.cboArbJahr->currentText();
    // The sums are taken from the screen, not added up from the rows.
    for (const auto& [name, label] : {std::pair(u"lblNName"_s, screen.lblNName),
                                      {u"lblVName"_s, screen.lblVName},
                                      {u"lblMitglNr"_s, screen.lblKNr},
                                      {u"lblGesStd"_s, screen.lblGesStd},
                                      {u"lblPflStd"_s, screen.lblPflStd},
                                      {u"lblSollHaben"_s, screen.lblErgStd}})
        report.control(u"Section5"_s, name).caption = label->text();
}

} // namespace

void DruckeArbListe(const QString& wort) {
    drucke(
        {.modul = u"modArbeit"_s,
         .routine = u"DruckeArbListe"_s,
         .aufrufer = the<Arbeit>(),
         .grid = *the<Arbeit>().tblArbStd,
         .tabelle = u"Druck_ArbListe"_s,
         .spalten = {{0, u"ArbNr"_s, &ganzzahl}, {2, u"GelStd"_s, &stundenWieGezeigt}, {3, u"Datum"_s, &tag}},
         .report = &Berichte::rpt_ArbListe,
         .richteEin = &richteEin},
        wort);
}

} // namespace modArbeit
