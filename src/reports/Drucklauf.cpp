#include "Drucklauf.h"

#include "DataTable.h"
#include "Hourglass.h"
#include "Info.h"
#include "MsgBox.h"
#include "PrintDialogs.h"
#include "Rahmen.h"
#include "Report.h"
#include "Screens.h"
#include "Session.h"
#include "Stage.h"
#include "StagedRows.h"
#include "Vorschau.h"
#include "modTools.h"

#include <QLabel>

namespace {

void oeffne(ErrorTail& step, ADODB::Connection& connection) {
    step([&] { connection.setProvider(u"Microsoft.Jet.OLEDB.4.0"_qs); });
    step([&] { connection.setProperty(u"Data Source"_qs, programFolder() + u"/uw01.mdb"_qs); });
    step([&] { connection.setProperty(u"Jet OLEDB:Database Password"_qs, modTools::passwort()); });
    step([&] { connection.Open(); });
}

void leere(ErrorTail& step, ADODB::Recordset& rows) {
    if (!step.test([&] { return !rows.Bof(); })) return;
    step([&] { rows.MoveFirst(); });
    step.forEachRow(rows, [&] { step([&] { rows.Delete(); }); });
}

void setzeAnschrift(ErrorTail& step, Report& report) {
    const Info& info = screen<Info>();
    for (const QLabel* label : {info.lblVerein, info.lblStrasse, info.lblPLZ, info.lblOrt, info.lblTelefon})
        step([&] { report.control(u"Section2"_qs, label->objectName()).setCaption(label->text()); });
}

void gibAus(ErrorTail& step, Hourglass& hourglass, Report& report, const QString& wort) {
    if (wort == u"drucken"_qs) {
        step([&] { printAfterDialog(*report.document()); });
    } else if (wort == u"vorschau"_qs) {
        hourglass.end();
        step([&] { rahmen()->binde(screen<Vorschau>()); });
        step([&] {
            const auto document = report.document();
            screen<Vorschau>().zeige(document);
        });
    }
}

void stelleDar(ErrorTail& step, const Druckauftrag& auftrag, ADODB::Recordset& rows, const QString& wort,
               Hourglass& hourglass) {
    if (step.test([] { return printDialogs().printerCount() <= 0; })) {
        hourglass.leave();
        MsgBox(u"ACHTUNG: Kein Drucker installiert, Vorgang wird abgebrochen !"_qs, vbInformation);
        return;
    }
    Report& report = auftrag.report();
    step([&] {
        StagedRows staged(rows);
        report.bind(staged);
    });
    setzeAnschrift(step, report);
    auftrag.richteEin(step, report);
    gibAus(step, hourglass, report, wort);
}

} // namespace

void drucke(const Druckauftrag& auftrag, const QString& wort) {
    withErrorTail(auftrag.modul, auftrag.routine, [&](ErrorTail& step) {
        Hourglass hourglass(auftrag.aufrufer);
        ADODB::Connection connection;
        ADODB::Recordset rows;
        oeffne(step, connection);
        step([&] {
            rows.Open(auftrag.tabelle, connection, ADODB::adOpenDynamic, ADODB::adLockOptimistic,
                      ADODB::adCmdTable);
        });
        leere(step, rows);
        if (auftrag.grid.rowCount() == 0) {
            hourglass.end();
            step([&] { rows.Close(); });
            step([&] { connection.Close(); });
            MsgBox(u"Keine Daten zum Drucken vorhanden, Vorgang wird abgebrochen !"_qs, vbInformation);
            return;
        }
        for (int row = 0; row < auftrag.grid.rowCount(); ++row) {
            step([&] { rows.AddNew(); });
            auftrag.schreibeZeile(step, rows, row);
            step([&] { rows.Update(); });
        }
        stelleDar(step, auftrag, rows, wort, hourglass);
        step([&] { rows.Close(); });
        step([&] { connection.Close(); });
    });
}

void druckeFuer(const Screen& aufrufer, const std::function<void()>& routine) {
    session().NachReport = true;
    routine();
    if (Stage::current()->front() == &aufrufer) session().NachReport = false;
}
