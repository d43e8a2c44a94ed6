#include "Besatzung.h"
#include "CsvDatei.h"
#include "DataTable.h"
#include "ExcelAusgabe.h"
#include "Screens.h"
#include "SeqData.h"
#include "Session.h"
#include "modBesatzList.h"

// The stocking plan as a file for the spreadsheet.

namespace modBesatzList {

namespace {

void schreibeZeile(CsvDatei& datei, const DataTable& grid, int row) {
    // The number stands as it is, blanks and all; the texts end with their last sign.
    datei.writeHead(grid.cellText(row, 0));
    for (int column = 1; column <= 4; ++column) datei.writeText(grid.cellText(row, column));
    datei.endLine();
}

void schreibeDatei(const DataTable& grid) {
    CsvDatei datei(SeqData::path(programFolder(), u"BPLAN.csv"_qs));
    for (const QString& head :
         {u"Besatz.- Nr"_qs, u"Fischart"_qs, u"Gewässer"_qs, u"Zeitpunkt"_qs, u"Menge i. KG"_qs})
        datei.writeHead(head);
    datei.endLine();
    for (int row = 0; row < grid.rowCount(); ++row) schreibeZeile(datei, grid, row);
    datei.close();
}

} // namespace

void ErzeugeBPlanDatei() {
    schreibeFuerExcel(
        [] { schreibeDatei(*screen<Besatzung>().tblBList); },
        u"ACHTUNG: Ein unerwarteter Fehler trat beim Erzeugen des Besatzungsplanes - BPLAN.csv - auf !"_qs,
        u"Datei - BPLAN.CSV - wurde erfolgreich im Pfad: ..\\uferwart\\seqdata\\ erstellt !"_qs,
        &StarteExcelBPlan);
}

void StarteExcelBPlan() {
    zeigeInExcel(SeqData::path(programFolder(), u"BPLAN.csv"_qs),
                 {u"A:A"_qs, u"B:B"_qs, u"C:C"_qs, u"D:D"_qs, u"E:E"_qs});
}

} // namespace modBesatzList
