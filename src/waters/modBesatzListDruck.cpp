#include "Berichte.h"
#include "Besatzung.h"
#include "ComboBox.h"
#include "DataTable.h"
#include "Drucklauf.h"
#include "Report.h"
#include "Screens.h"
#include "modBesatzList.h"

#include <array>

// The stocking plan on paper.

namespace modBesatzList {

namespace {

/// Of the staging table, in the order of the grid's columns and of the report's texts.
const std::array felder = {u"BNr"_qs, u"FName"_qs, u"GName"_qs, u"Zeit"_qs, u"Menge"_qs};

void schreibeZeile(ErrorTail& step, Recordset& zeile, const DataTable& grid, int row) {
    int column = 0;
    for (const QString& feld : felder) step([&] { zeile.Collect(feld, grid.cellText(row, column++)); });
}

void richteEin(ErrorTail& step, Report& report) {
    // The title is extended and not replaced: a report that is in use keeps its labels.
    step([&] {
        ReportControl& titel = report.control(u"Section2"_qs, u"lblUeb"_qs);
        titel.setCaption(titel.caption() + u" für das Fangjahr "_qs +
                         screen<Besatzung>().cboBJahr->currentText());
    });
    int number = 0;
    for (const QString& feld : felder)
        step([&] { report.control(u"Section1"_qs, u"Text%1"_qs.arg(++number)).setDataField(feld); });
}

} // namespace

void DruckeBPlanListe(const QString& wort) {
    Besatzung& form = screen<Besatzung>();
    drucke({.modul = u"modBesatzung"_qs,
            .routine = u"DruckeBPlanListe"_qs,
            .aufrufer = form,
            .grid = *form.tblBList,
            .tabelle = u"Druck_Besatzliste"_qs,
            .report = &Berichte::rpt_BesatzListe,
            .schreibeZeile = &schreibeZeile,
            .richteEin = &richteEin},
           wort);
}

} // namespace modBesatzList
