#include "ExcelAnzeige.h"

#include "MsgBox.h"
#include "OfficeProgram.h"
#include "RuntimeError.h"
#include "Spreadsheet.h"

void zeigeInExcel(const QString& path, std::initializer_list<QString> columns) {
    try {
        const std::unique_ptr<Spreadsheet> excel = runningOrNew(spreadsheetProgram());
        excel->setVisible(true);
        excel->openWorkbook(path);
        for (const QString& column : columns) excel->autoFitColumns(column);
    } catch (const RuntimeError&) {
        // Whether the program can be reached may only turn out when it is to do something.
        MsgBox(u"Es ist kein Excel verfügbar !"_qs, vbInformation);
    }
}
