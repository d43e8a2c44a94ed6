#include "Berichte.h"
#include "Besatzung.h"
#include "ComboBox.h"
#include "DataTable.h"
#include "Drucklauf.h"
#include "Report.h"
#include "Screens.h"
#include "modBesatzList.h"

#include <array>

using namespace Qt::StringLiterals;

// Printing of the stocking plan.

namespace modBesatzList {

namespace {

/// Fields of the table Druck_Besatzliste, in the order of the grid's columns and of the report's texts.
const std::array felder = {u"BNr"_s, u"FName"_s, u"GName"_s, u"Zeit"_s, u"Menge"_s};

void schreibeZeile(ErrorTail& step, Recordset& zeile, const DataTable& grid, int row) {
    int column = 0;
    for (const QString& feld : felder) step([&] { zeile.Collect(feld, grid.cellText(row, column++)); });
}

void richteEin(ErrorTail& step, Report& report) {
    // Appends to the caption instead of setting it: a report that is still in use keeps its captions.
    step([&] {
        ReportControl& titel = report.control(u"Section2"_s, u"lblUeb"_s);
        titel.setCaption(titel.caption() + u" für das Fangjahr "_s +
                         the<Besatzung>().cboBJahr->currentText());
    });
    int number = 0;
    for (const QString& feld : felder)
        step([&] { report.control(u"Section1"_s, u"Text%1"_s.arg(++number)).setDataField(feld); });
}

} // namespace

void DruckeBPlanListe(const QString& wort) {
    Besatzung& screen = the<Besatzung>();
    drucke({.modul = u"modBesatzung"_s,
            .routine = u"DruckeBPlanListe"_s,
            .aufrufer = screen,
            .grid = *screen.tblBList,
            .tabelle = u"Druck_Besatzliste"_s,
            .report = &Berichte::rpt_BesatzListe,
            .schreibeZeile = &schreibeZeile,
            .richteEin = &richteEin},
           wort);
}

} // namespace modBesatzList
