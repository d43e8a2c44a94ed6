// The catch book: filling its grid with a month, and the start of the program.

#include "DataTable.h"
#include "Fangbuch.h"
#include "Measure.h"
#include "Program.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"
#include "RawFills.h"
#include "Screens.h"
#include "Session.h"
#include "modFangbuch.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

void benchMonthList(const QString& folder) {
    RawFile file(folder + u"/uw01.mdb"_s);
    RawCatches rows;
    Program program(folder);
    program.start();
    logIn();
    Fangbuch& screen = the<Fangbuch>();
    const auto fill = [&] {
        modFangbuch::loadTblFList(screen.pb);
        screen.tblFList->publish();
    };
    printRow("loadTblFList, catches of a month", byTurns(5, fill, [&] { rawJoin(file, rows); }),
             "join stepped, cells copied", 2.0);
    printGrid(*screen.tblFList, mostBytesARow);
}

struct Start {
    double toLogin;
    double toCatchBook;
};

Start startOnce(const QString& folder) {
    Program program(folder);
    const double toLogin = secondsOf([&] {
        program.start();
        QApplication::processEvents();
    });
    const double toCatchBook = secondsOf([] {
        logIn();
        QApplication::processEvents();
    });
    return {toLogin, toCatchBook};
}

/// Deletes the contacts and the catches of the clock's month. The start fills no screen from the other rows,
/// however many there are.
void keepOldCatches(const QString& folder) {
    RawFile file(folder + u"/uw01.mdb"_s);
    file.execute("BEGIN; DELETE FROM Fang WHERE FangJahr = 2026 AND FangMonat = 3; DELETE FROM Kontakt; "
                 "DELETE FROM Mitglied; DELETE FROM Arbeit; COMMIT");
}

/// The time for reading what every login must read, with no pages in memory.
double rawFills(const QString& folder) {
    RawFile file(folder + u"/uw01.mdb"_s);
    RawCatches rows;
    return secondsOf([&] {
        rawCounts(file);
        rawJoin(file, rows);
    });
}

constexpr int runs = 9;

void benchFullStart(const QString& folder, const QString& empty) {
    std::vector<double> books, baselines;
    for (int run = 0; run < runs; ++run) {
        baselines.push_back(startOnce(empty).toCatchBook + rawFills(folder));
        books.push_back(startOnce(folder).toCatchBook);
    }
    printRow("login to catch book", {median(books), median(baselines)},
             "an empty one, and its bare statements", 2.0);
}

void benchStart(const QString& folder, const QString& empty) {
    std::vector<double> logins, books, emptyLogins, emptyBooks;
    for (int run = 0; run < runs; ++run) {
        const Start small = startOnce(empty);
        const Start large = startOnce(folder);
        emptyLogins.push_back(small.toLogin);
        emptyBooks.push_back(small.toCatchBook);
        logins.push_back(large.toLogin);
        books.push_back(large.toCatchBook);
    }
    printRow("start to login, old catches", {median(logins), median(emptyLogins)}, "with an empty file", 1.3);
    printRow("login to catch book, old catches", {median(books), median(emptyBooks)}, "with an empty file",
             1.3);
}

} // namespace

int main(int argc, char* argv[]) {
    NoBoxes boxes;
    BenchDesk desk(argc, argv, boxes);
    benchMonthList(desk.club());
    benchFullStart(desk.club(), desk.club(emptyClub));
    keepOldCatches(desk.club());
    benchStart(desk.club(), desk.club(emptyClub));
}
