#include "Drucklauf.h"

#include "DBEngine.h"
#include "DataTable.h"
#include "Datenbank.h"
#include "Hourglass.h"
#include "MsgBox.h"
#include "PrintDialogs.h"
#include "Rahmen.h"
#include "Report.h"
#include "Screens.h"
#include "Session.h"
#include "Stage.h"
#include "Vorschau.h"

using namespace Qt::StringLiterals;

namespace {

/// The rows of a staging table as the source of a report.
class StagedRows final : public ReportRowSource {
public:
    explicit StagedRows(Recordset& rows)
        : m_rows(rows)
        , m_fields(rows.Fields()) {}

    QStringList fields() const override { return m_rows.FieldNames(); }

    bool next(std::vector<Value>& row) override {
        if (m_begun)
            m_rows.MoveNext();
        else
            m_rows.MoveFirst();
        m_begun = true;
        if (m_rows.Eof()) return false;
        for (std::size_t i = 0; i < m_fields.size(); ++i) row[i] = m_fields[i].Value();
        return true;
    }

private:
    Recordset& m_rows;
    std::vector<Recordset::Field> m_fields;
    bool m_begun = false;
};

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
        auftrag.schreibeZeile(step, rows, auftrag.grid, row);
        gefuellt = step([&] { rows.Update(); }) && gefuellt;
    }
    return gefuellt;
}

void setzeAnschrift(ErrorTail& step, Report& report) {
    auto line = session().Anschrift.begin();
    for (const QString& label : {u"lblVerein"_s, u"lblStrasse"_s, u"lblPLZ"_s, u"lblOrt"_s, u"lblTelefon"_s})
        step([&] { report.control(u"Section2"_s, label).setCaption(*line++); });
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
        step([&] { rahmen()->binde(the<Vorschau>()); });
        step([&] {
            const auto document = report->document();
            the<Vorschau>().zeige(document, report);
        });
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
    step([&] {
        StagedRows staged(rows);
        report->bind(staged);
    });
    setzeAnschrift(step, *report);
    auftrag.richteEin(step, *report);
    gibAus(step, hourglass, report, wort);
}

} // namespace

void drucke(const Druckauftrag& auftrag, const QString& wort) {
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
}

void druckeFuer(const Screen& aufrufer, const std::function<void()>& routine) {
    session().NachReport = true;
    routine();
    if (Stage::current()->front() == &aufrufer) session().NachReport = false;
}
