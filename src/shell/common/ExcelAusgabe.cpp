#include "ExcelAusgabe.h"

#include "DataTable.h"
#include "Meldungen.h"
#include "MsgBox.h"
#include "OtherProgram.h"
#include "RuntimeError.h"
#include "Spreadsheet.h"

using namespace Qt::StringLiterals;

void erzeugeAufWunsch(const DataTable& grid, const QString& frage, const QString& keineDaten,
                      void (*erzeuge)()) {
    if (!modRun::frage(frage))
        modRun::MeldeAbgebrochen();
    else if (grid.rowCount() == 0)
        MsgBox(keineDaten, vbInformation);
    else
        erzeuge();
}

void schreibeFuerExcel(const std::function<void()>& schreibe, const QString& fehler, const QString& erfolg,
                       void (*starte)()) {
    try {
        schreibe();
    } catch (const RuntimeError&) {
        const QString rat =
            u"Bitte überprüfen Sie ob noch genug Speicher auf den Datenträger verfügbar ist."_s;
        MsgBox(fehler + u"\r\n"_s + rat, vbCritical);
        return;
    }
    MsgBox(erfolg, vbInformation);
    if (modRun::frage(u"Möchten Sie jetzt Excel starten ?"_s)) starte();
}

void zeigeInExcel(const QString& path, std::initializer_list<QString> columns) {
    try {
        const auto excel = runningOrNew<Spreadsheet>();
        excel->setVisible(true);
        excel->openWorkbook(path);
        for (const QString& column : columns) excel->autoFitColumns(column);
        awaitOtherProgram();
    } catch (const RuntimeError&) {
        // Any of the calls may be the first to find that the program can't be reached.
        MsgBox(u"Es ist kein Excel verfügbar !"_s, vbInformation);
    }
}
