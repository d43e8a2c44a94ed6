#include "ExcelAusgabe.h"

#include "CsvDatei.h"
#include "DataTable.h"
#include "Meldungen.h"
#include "MsgBox.h"
#include "OtherProgram.h"
#include "RuntimeError.h"
#include "Session.h"
#include "Spreadsheet.h"

using namespace Qt::StringLiterals;

void erzeugeAufWunsch(const DataTable& grid, const QString& datei, const QString& daten, void (*erzeuge)()) {
    if (!modRun::frage(
            u"Wollen Sie eine in Excel zu importierende Datei mit der Bezeichnung - %1 - erzeugen ?\n\r"_s
            u"ACHTUNG: Der Datei liegen die %2 zugrunde ! Wollen Sie die Datei jetzt erzeugen ?"_s.arg(
                datei, daten)))
        modRun::MeldeAbgebrochen();
    else if (grid.rowCount() == 0)
        MsgBox(u"Keine Daten zum erzeugen der Datei - %1 - gefunden, der Vorgang wird abgebrochen !"_s.arg(
                   datei),
               vbInformation);
    else
        erzeuge();
}

void schreibeFuerExcel(const DataTable& grid, const QString& datei, const QString& liste,
                       const QStringList& koepfe,
                       void (*schreibeZeile)(CsvDatei& datei, const DataTable& grid, int row),
                       void (*starte)()) {
    try {
        CsvDatei csv(CsvDatei::path(programFolder(), datei));
        for (const QString& kopf : koepfe) csv.writeText(kopf);
        csv.endLine();
        for (int row = 0; row < grid.rowCount(); ++row) schreibeZeile(csv, grid, row);
        csv.close();
    } catch (const RuntimeError&) {
        MsgBox(u"ACHTUNG: Ein unerwarteter Fehler trat beim Erzeugen %1 - %2 - auf !\r\n"_s
               u"Bitte überprüfen Sie ob noch genug Speicher auf den Datenträger verfügbar ist."_s.arg(liste,
                                                                                                       datei),
               vbCritical);
        return;
    }
    const QString name = datei.toUpper();
    MsgBox(u"Datei - %1 - wurde erfolgreich im Pfad: ..\\uferwart\\seqdata\\ erstellt !"_s.arg(name),
           vbInformation);
    if (modRun::frage(u"Möchten Sie jetzt Excel starten ?"_s)) starte();
}

void zeigeInExcel(const QString& datei, int columns) {
    try {
        const auto excel = runningOrNew<Spreadsheet>();
        excel->setVisible(true);
        excel->openWorkbook(CsvDatei::path(programFolder(), datei));
        for (int column = 0; column < columns; ++column)
            excel->autoFitColumns(u"%1:%1"_s.arg(QChar(u'A' + column)));
        awaitOtherProgram();
    } catch (const RuntimeError&) {
        // Any of the calls may be the first to find that the program can't be reached.
        MsgBox(u"Es ist kein Excel verfügbar !"_s, vbInformation);
    }
}
