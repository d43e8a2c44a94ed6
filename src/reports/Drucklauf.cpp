#include "Drucklauf.h"

#include "Conversions.h"
#include "DBEngine.h"
#include "ErrorTail.h"
#include "Hourglass.h"
#include "MsgBox.h"
#include "PrintDialogs.h"
#include "Screens.h"
#include "Session.h"
#include "Stage.h"
#include "Vorschau.h"

using namespace Qt::StringLiterals;

namespace {

ReportRows gestellteZeilen(Recordset& staged) {
    const std::vector<Recordset::Field> fields = staged.Fields();
    ReportRows rows(staged.FieldNames());
    std::vector<Value> row(fields.size());
    for (staged.MoveFirst(); !staged.Eof(); staged.MoveNext()) {
        std::ranges::transform(fields, row.begin(), &Recordset::Field::Value);
        rows.append(row);
    }
    return rows;
}

/// A second connection to the database file, so that staging is an action of its own.
Database zweiteVerbindung() {
    return DBEngine::Workspaces(0).OpenDatabase(datenbankDatei(), false, false, datenbankVerbindung());
}

/// Deletes the rows of the last run; true if none is left.
bool leere(ErrorTail& step, Recordset& rows) {
    bool geleert = true;
    if (!step.test([&] { return !rows.Bof(); })) return geleert;
    step([&] { rows.MoveFirst(); });
    step.forEachRow(rows, [&] { geleert = step([&] { rows.Delete(); }) && geleert; });
    return geleert;
}

/// Stages the grid's rows; true if all could be saved. A field that can't be set stays empty.
bool fuelle(ErrorTail& step, const Druckauftrag& auftrag, Recordset& rows) {
    bool gefuellt = true;
    for (int row = 0; row < auftrag.grid.rowCount(); ++row) {
        step([&] { rows.AddNew(); });
        for (const auto& spalte : auftrag.spalten)
            step([&] { rows.Collect(spalte.feld, spalte.wert(auftrag.grid, row, spalte.column)); });
        gefuellt = step([&] { rows.Update(); }) && gefuellt;
    }
    return gefuellt;
}

/// Sets the labels and the fields that the report shows.
void richteEin(const Druckauftrag& auftrag, Report& report) {
    auto line = session().Anschrift.begin();
    for (const QString& label : {u"lblVerein"_s, u"lblStrasse"_s, u"lblPLZ"_s, u"lblOrt"_s, u"lblTelefon"_s})
        report.control(u"Section2"_s, label).caption = *line++;
    auftrag.richteEin(report);
    int number = 0;
    for (const Druckspalte& spalte : auftrag.spalten)
        report.control(u"Section1"_s, u"Text%1"_s.arg(++number)).dataField = spalte.feld;
}

void gibAus(ErrorTail& step, Hourglass& hourglass, const std::shared_ptr<Report>& report,
            const QString& wort) {
    if (wort == u"drucken"_s) {
        step([&] {
            const auto document = report->document();
            const auto target = printDialogs().choosePrintTarget(*document, 0);
            if (target) printReport(*document, *target);
        });
    } else if (wort == u"vorschau"_s) {
        hourglass.end();
        step([&] { the<Vorschau>().zeige(report->document(), report); });
    }
}

void stelleDar(ErrorTail& step, const Druckauftrag& auftrag, Recordset& rows, const QString& wort,
               Hourglass& hourglass) {
    if (step.test([] { return printDialogs().printerCount() <= 0; })) {
        hourglass.leave();
        MsgBox(u"ACHTUNG: Kein Drucker installiert, Vorgang wird abgebrochen !"_s, vbInformation);
        return;
    }
    const std::shared_ptr<Report> report = auftrag.report();
    step([&] { report->bind(gestellteZeilen(rows)); });
    richteEin(auftrag, *report);
    gibAus(step, hourglass, report, wort);
}

} // namespace

Value wieGezeigt(const DataTable& grid, int row, int column) { return grid.cellText(row, column); }

Value ganzzahl(const DataTable& grid, int row, int column) { return CLng(grid.cell(row, column)); }

void drucke(const Druckauftrag& auftrag, const QString& wort) {
    session().NachReport = true;
    withErrorTail(auftrag.modul, auftrag.routine, [&](ErrorTail& step) {
        Hourglass hourglass(auftrag.aufrufer);
        Database connection;
        Recordset rows;
        step([&] { connection = zweiteVerbindung(); });
        step([&] { rows = connection.OpenRecordset(auftrag.tabelle, dbOpenTable); });
        const bool geleert = leere(step, rows);
        if (auftrag.grid.rowCount() == 0) {
            hourglass.end();
            step([&] { rows.Close(); });
            step([&] { connection.Close(); });
            MsgBox(u"Keine Daten zum Drucken vorhanden, Vorgang wird abgebrochen !"_s, vbInformation);
            return;
        }
        // A refused write restores the rows of the last run, perhaps those of another member.
        if (fuelle(step, auftrag, rows) && geleert) stelleDar(step, auftrag, rows, wort, hourglass);
        step([&] { rows.Close(); });
        step([&] { connection.Close(); });
    });
    if (Stage::current()->front() == &auftrag.aufrufer) session().NachReport = false;
}
