#include "Besatzung.h"
#include "CsvDatei.h"
#include "DataTable.h"
#include "ExcelAusgabe.h"
#include "Screens.h"
#include "SeqData.h"
#include "Session.h"
#include "modBesatzList.h"

using namespace Qt::StringLiterals;

// The CSV file of the stocking plan.

namespace modBesatzList {

namespace {

void schreibeZeile(CsvDatei& datei, const DataTable& grid, int row) {
    // writeHead keeps spaces at the end of the number; writeText removes them from the texts.
    datei.writeHead(grid.cellText(row, 0));
    for (int column = 1; column <= 4; ++column) datei.writeText(grid.cellText(row, column));
    datei.endLine();
}

void schreibeDatei(const DataTable& grid) {
    CsvDatei datei(SeqData::path(programFolder(), u"BPLAN.csv"_s));
    for (const QString& head :
         {u"Besatz.- Nr"_s, u"Fischart"_s, u"Gewässer"_s, u"Zeitpunkt"_s, u"Menge i. KG"_s})
        datei.writeHead(head);
    datei.endLine();
    for (int row = 0; row < grid.rowCount(); ++row) schreibeZeile(datei, grid, row);
    datei.close();
}

} // namespace

void ErzeugeBPlanDatei() {
    schreibeFuerExcel(
        [] { schreibeDatei(*the<Besatzung>().tblBList); },
        u"ACHTUNG: Ein unerwarteter Fehler trat beim Erzeugen des Besatzungsplanes - BPLAN.csv - auf !"_s,
        u"Datei - BPLAN.CSV - wurde erfolgreich im Pfad: ..\\uferwart\\seqdata\\ erstellt !"_s,
        &StarteExcelBPlan);
}

void StarteExcelBPlan() {
    zeigeInExcel(SeqData::path(programFolder(), u"BPLAN.csv"_s),
                 {u"A:A"_s, u"B:B"_s, u"C:C"_s, u"D:D"_s, u"E:E"_s});
}

} // namespace modBesatzList
