// The member list with the hours of all members.

#include "ComboBox.h"
#include "DataTable.h"
#include "Measure.h"
#include "MitglList.h"
#include "Program.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"
#include "Screens.h"
#include "modMitglList.h"

#include <QCheckBox>
#include <string>

using namespace Qt::StringLiterals;

namespace {

struct RawRow {
    qint64 number;
    std::string texts[6];
    double birthday;
    double hours;
};

double rawHours(sqlite3_stmt* sum, qint64 number) {
    sqlite3_bind_int64(sum, 1, number);
    sqlite3_bind_int(sum, 2, benchYear);
    sqlite3_step(sum);
    const double hours = sqlite3_column_double(sum, 0);
    sqlite3_reset(sum);
    return hours;
}

/// The same in SQLite's C API: the count, the list with its cells copied, a sum for each member.
void rawList(RawFile& file, std::vector<RawRow>& rows) {
    rows.clear();
    sqlite3_stmt* count = file.prepare("SELECT COUNT(k.KNr) FROM Kontakt k, Mitglied m WHERE k.KNr = m.KNr");
    sqlite3_step(count);
    sqlite3_finalize(count);
    sqlite3_stmt* sum = file.prepare("SELECT SUM(ArbStd) FROM Arbeit WHERE KNr = ?1 AND Jahr = ?2");
    sqlite3_stmt* list =
        file.prepare("SELECT k.KNr, k.Nachname, k.Vorname, k.Strasse, k.PLZ, k.Ort, k.Tel1, k.GebDatum "
                     "FROM Kontakt k, Mitglied m WHERE k.KNr = m.KNr");
    while (sqlite3_step(list) == SQLITE_ROW) {
        RawRow& row = rows.emplace_back();
        row.number = sqlite3_column_int64(list, 0);
        for (int i = 0; i < 6; ++i)
            row.texts[i] = reinterpret_cast<const char*>(sqlite3_column_text(list, i + 1));
        row.birthday = sqlite3_column_double(list, 7);
        row.hours = rawHours(sum, row.number);
    }
    sqlite3_finalize(list);
    sqlite3_finalize(sum);
}

void fill(DataTable& grid) {
    modMitglList::LadeAuswahl();
    grid.publish();
}

void benchLists(const QString& folder) {
    constexpr int runs = 7;
    RawFile file(folder + u"/uw01.mdb"_s);
    std::vector<RawRow> rows;
    const auto baseline = [&] { rawList(file, rows); };
    MitglList& screen = the<MitglList>();
    const auto list = [&] { fill(*screen.tblMList); };
    screen.chkArbAnz->setChecked(true);
    printRow("member list with hours", byTurns(runs, list, baseline), "a prepared sum a member", 3.0);
    printGrid(*screen.tblMList);
    screen.chkArbStd->setChecked(true);
    printRow("  only those below their hours", byTurns(runs, list, baseline), "a prepared sum a member", 3.0);
}

} // namespace

int main(int argc, char* argv[]) {
    NoBoxes boxes;
    BenchDesk desk(argc, argv, boxes);
    Program program(desk.club());
    program.start();
    logIn();
    benchLists(desk.club());
}
