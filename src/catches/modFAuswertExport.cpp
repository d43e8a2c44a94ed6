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

// The evaluation as a file for the spreadsheet.

namespace modFAuswert {

namespace {

/// Year, point and two digits of the month: sorts and reads as a number with two decimals.
QString fangdatum(const QString& jahr, const QString& monatsname) {
    static const std::array<QString, 12> endungen = {u".01"_qs, u".02"_qs, u".03"_qs, u".04"_qs,
                                                     u".05"_qs, u".06"_qs, u".07"_qs, u".08"_qs,
                                                     u".09"_qs, u".10"_qs, u".11"_qs, u".12"_qs};
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
    CsvDatei datei(SeqData::path(programFolder(), u"FANG.csv"_qs));
    for (const QString& head :
         {u"FangNr"_qs, u"Fischart"_qs, u"Gewässer"_qs, u"Fangdatum(jjjj.m)"_qs, u"Anzahl"_qs, u"Gewicht"_qs})
        datei.writeHead(head);
    datei.endLine();
    for (int row = 0; row < grid.rowCount(); ++row) schreibeZeile(datei, grid, row);
    datei.close();
}

} // namespace

void ErzeugeFangDatei() {
    schreibeFuerExcel(
        [] { schreibeDatei(*screen<Fangauswertung>().tblFAusw); },
        u"ACHTUNG: Ein unerwarteter Fehler trat beim Erzeugen der Fangdatei - FANG.csv - auf !"_qs,
        u"Datei - FANG.CSV - wurde erfolgreich im Pfad: ..\\uferwart\\seqdata\\ erstellt !"_qs,
        &StarteExcelFang);
}

void StarteExcelFang() {
    zeigeInExcel(SeqData::path(programFolder(), u"Fang.csv"_qs),
                 {u"A:A"_qs, u"B:B"_qs, u"C:C"_qs, u"D:D"_qs, u"E:E"_qs, u"F:F"_qs});
}

} // namespace modFAuswert
