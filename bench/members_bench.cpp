// The member list with the hours of ten thousand members, each with some bookings in each of three years.

#include "ComboBox.h"
#include "DataTable.h"
#include "Measure.h"
#include "MitglList.h"
#include "Program.h"
#include "ProgramFolder.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"
#include "Screens.h"
#include "modMitglList.h"

#include <QCheckBox>
#include <QTemporaryDir>
#include <string>

namespace {

constexpr int members = 10'000;
constexpr int years = 3;
constexpr int bookingsAYear = 6;
constexpr int runs = 7;

void addMember(sqlite3_stmt* contact, sqlite3_stmt* member, int number) {
    const std::string name = "Nachname " + std::to_string(number % 3000);
    sqlite3_bind_text(contact, 1, name.c_str(), -1, SQLITE_TRANSIENT);
    sqlite3_bind_double(contact, 2, 20000 + number);
    sqlite3_bind_int(member, 1, number);
    for (sqlite3_stmt* insert : {contact, member}) {
        sqlite3_step(insert);
        sqlite3_reset(insert);
    }
}

void addBookings(RawFile& file) {
    sqlite3_stmt* insert = file.prepare(
        "INSERT INTO Arbeit(KNr, Jahr, Datum, ArbStd, Notiz) VALUES (?1, ?2, 45000, ?3, 'Arbeit')");
    for (int booking = 0; booking < bookingsAYear * years; ++booking) {
        for (int number = 1; number <= members; ++number) {
            sqlite3_bind_int(insert, 1, number);
            sqlite3_bind_int(insert, 2, benchYear - booking % years);
            sqlite3_bind_double(insert, 3, 0.5 * (number % 9));
            sqlite3_step(insert);
            sqlite3_reset(insert);
        }
    }
    sqlite3_finalize(insert);
}

void makeFolderWithMembers(const QString& folder) {
    makeProgramFolder(folder, benchYear, false);
    RawFile file(folder + u"/uw01.mdb"_qs);
    file.execute("BEGIN");
    sqlite3_stmt* contact =
        file.prepare("INSERT INTO Kontakt(KategoNr, Nachname, Vorname, Strasse, PLZ, Ort, Tel1, GebDatum) "
                     "VALUES (1, ?1, 'Vorname', 'Am Wehr 7', '01234', 'Auenbrück', '040 123', ?2)");
    sqlite3_stmt* member =
        file.prepare("INSERT INTO Mitglied(KNr, Eintritt, Austritt) VALUES (?1, 36000, 0)");
    for (int number = 1; number <= members; ++number) addMember(contact, member, number);
    sqlite3_finalize(contact);
    sqlite3_finalize(member);
    addBookings(file);
    file.execute("COMMIT");
}

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

/// The same on the C API: the count, the list with its cells copied, a sum a member.
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
    RawFile file(folder + u"/uw01.mdb"_qs);
    file.execute("PRAGMA cache_size = -32768"); // as the program has it
    std::vector<RawRow> rows;
    const double floor = medianSeconds(runs, [&] { rawList(file, rows); });
    MitglList& form = screen<MitglList>();
    form.chkArbAnz->setChecked(true);
    const double hours = medianSeconds(runs, [&] { fill(*form.tblMList); });
    printRow("member list with hours, 10,000 members", hours, "a prepared sum a member", floor, 3.0);
    std::printf("%-44s %10d rows\n", "its grid", form.tblMList->rowCount());
    form.chkArbStd->setChecked(true);
    const double compared = medianSeconds(runs, [&] { fill(*form.tblMList); });
    printRow("the same, only those below their hours", compared, "a prepared sum a member", floor, 3.0);
}

} // namespace

int main(int argc, char* argv[]) {
    NoBoxes boxes;
    const BenchDesk desk(argc, argv, boxes);
    QTemporaryDir temporary;
    const QString folder = temporary.filePath(u"mitglieder"_qs);
    makeFolderWithMembers(folder);
    Program program(folder);
    program.start();
    logIn();
    benchLists(folder);
}
