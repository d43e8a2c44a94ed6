#include "CsvDatei.h"
#include "DataTable.h"
#include "ExcelAusgabe.h"
#include "Fangauswertung.h"
#include "Kalendernamen.h"
#include "Screens.h"
#include "SeqData.h"
#include "Session.h"
#include "modFAuswert.h"

#include <array>

using namespace Qt::StringLiterals;

// Writes the evaluation to a file for the spreadsheet.

namespace modFAuswert {

namespace {

/// Year, point and two digits of the month. The spreadsheet reads and sorts it as a number.
QString fangdatum(const QString& jahr, const QString& monatsname) {
    static const std::array<QString, 12> endungen = {u".01"_s, u".02"_s, u".03"_s, u".04"_s,
                                                     u".05"_s, u".06"_s, u".07"_s, u".08"_s,
                                                     u".09"_s, u".10"_s, u".11"_s, u".12"_s};
    return jahr + endungen[static_cast<std::size_t>(modRun::ErmittleMonatsNr(monatsname) - 1)];
}

void schreibeZeile(CsvDatei& datei, const DataTable& grid, int row) {
    datei.writeField(grid.cell(row, 0), 15, CsvDatei::Fill::Padded);
    datei.writeField(grid.cell(row, 1), 50);
    datei.writeField(grid.cell(row, 2), 50);
    datei.writeText(fangdatum(grid.cellText(row, 4), grid.cellText(row, 3)), 20);
    datei.writeField(grid.cell(row, 5), 5);
    datei.writeField(grid.cell(row, 6), 10);
    datei.endLine();
}

void schreibeDatei(const DataTable& grid) {
    CsvDatei datei(SeqData::path(programFolder(), u"FANG.csv"_s));
    for (const QString& head :
         {u"FangNr"_s, u"Fischart"_s, u"Gewässer"_s, u"Fangdatum(jjjj.m)"_s, u"Anzahl"_s, u"Gewicht"_s})
        datei.writeHead(head);
    datei.endLine();
    for (int row = 0; row < grid.rowCount(); ++row) schreibeZeile(datei, grid, row);
    datei.close();
}

} // namespace

void ErzeugeFangDatei() {
    schreibeFuerExcel(
        [] { schreibeDatei(*the<Fangauswertung>().tblFAusw); },
        u"ACHTUNG: Ein unerwarteter Fehler trat beim Erzeugen der Fangdatei - FANG.csv - auf !"_s,
        u"Datei - FANG.CSV - wurde erfolgreich im Pfad: ..\\uferwart\\seqdata\\ erstellt !"_s,
        &StarteExcelFang);
}

void StarteExcelFang() {
    zeigeInExcel(SeqData::path(programFolder(), u"Fang.csv"_s),
                 {u"A:A"_s, u"B:B"_s, u"C:C"_s, u"D:D"_s, u"E:E"_s, u"F:F"_s});
}

} // namespace modFAuswert
