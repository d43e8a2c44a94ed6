// Bringing a member into the work ledger: no slower with a million bookings in the file than with a thousand.

#include "Arbeit.h"
#include "DataTable.h"
#include "Measure.h"
#include "Program.h"
#include "ProgramFolder.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"
#include "Screens.h"
#include "SuchKont.h"
#include "modArbeit.h"

#include <QTemporaryDir>

namespace {

constexpr int years = 20;
constexpr int bookingsAYear = 10;
constexpr int bookingsAMember = years * bookingsAYear;

void addMembers(RawFile& file, int members) {
    sqlite3_stmt* insert =
        file.prepare("INSERT INTO Mitglied(KNr, Eintritt, Austritt) VALUES (?1, 36000, 0)");
    for (int number = 1; number <= members; ++number) {
        sqlite3_bind_int(insert, 1, number);
        sqlite3_step(insert);
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
}

/// In the order of their days, so that the bookings of one member lie far apart in the file.
void addBookings(RawFile& file, int members) {
    sqlite3_stmt* insert = file.prepare(
        "INSERT INTO Arbeit(KNr, Jahr, Datum, ArbStd, Notiz) VALUES (?1, ?2, ?3, ?4, 'Steg gestrichen')");
    for (int day = 0; day < bookingsAMember; ++day) {
        for (int number = 1; number <= members; ++number) {
            sqlite3_bind_int(insert, 1, number);
            sqlite3_bind_int(insert, 2, benchYear - years + 1 + day / bookingsAYear);
            sqlite3_bind_double(insert, 3, 40000 + 36 * day);
            sqlite3_bind_double(insert, 4, 0.5 * (number % 9));
            sqlite3_step(insert);
            sqlite3_reset(insert);
        }
    }
    sqlite3_finalize(insert);
}

void makeFolderWithBookings(const QString& folder, int bookings) {
    makeProgramFolder(folder, benchYear, false);
    RawFile file(folder + u"/uw01.mdb"_qs);
    file.execute("BEGIN");
    addMembers(file, bookings / bookingsAMember);
    addBookings(file, bookings / bookingsAMember);
    file.execute("COMMIT");
}

void bringIn(int row) {
    modArbeit::UebernehmeKontakt(row);
    screen<Arbeit>().tblArbStd->publish();
}

struct Times {
    double first; ///< of a member who has not been looked at before
    double again;
};

/// Five members of the search, from the first to the last of the file.
Times timesWith(const QString& folder, int bookings) {
    constexpr int found = 5;
    constexpr int runs = 201;
    makeFolderWithBookings(folder, bookings);
    Program program(folder);
    program.start();
    logIn();
    DataTable& grid = *screen<SuchKont>().tblSuch;
    const int members = bookings / bookingsAMember;
    for (int i = 1; i <= found; ++i)
        grid.appendRow({members * i / found, u"Mitglieder (aktiv)", u"", u"Nachname", u"Vorname"});
    int row = 0;
    bringIn(row++); // makes the screens
    const double first = medianSeconds(found - 1, [&] { bringIn(row++); });
    const double again = medianSeconds(runs, [&] { bringIn(row++ % found); });
    std::printf("%d bookings in the file, %d of the member's year in the grid\n", bookings,
                screen<Arbeit>().tblArbStd->rowCount());
    return {first, again};
}

} // namespace

int main(int argc, char* argv[]) {
    NoBoxes boxes;
    const BenchDesk desk(argc, argv, boxes);
    QTemporaryDir temporary;
    const Times small = timesWith(temporary.filePath(u"tausend"_qs), 1'000);
    const Times large = timesWith(temporary.filePath(u"million"_qs), 1'000'000);
    printRow("a member into the ledger, 1,000,000 bookings", large.again, "1,000 bookings", small.again,
             1.25);
    std::printf("%-44s %10.3f ms, with 1,000 bookings %.3f ms\n", "the same, looked at for the first time",
                large.first * 1e3, small.first * 1e3);
}
