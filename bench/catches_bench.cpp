// The catch book: its grid over a month of the clock, and the start of the program.

#include "DataTable.h"
#include "Fangbuch.h"
#include "Measure.h"
#include "Program.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"
#include "Screens.h"
#include "Session.h"
#include "modFangbuch.h"

#include <QApplication>
#include <array>
#include <string>

namespace {

struct RawCell {
    qint64 number = 0;
    std::string text;
};

/// The same join stepped on the C API, its cells copied.
void rawJoin(RawFile& file, std::vector<std::array<RawCell, 6>>& rows) {
    rows.clear();
    sqlite3_stmt* join = file.prepare(
        "SELECT fa.FangNr, f.FName, g.GName, fa.FangMonat, fa.Anzahl, fa.Gewicht FROM Fang fa, Fisch f, "
        "Gewaesser g "
        "WHERE fa.FangJahr = 2026 AND fa.FangMonat = 3 AND fa.FischNr = f.FNr AND fa.GNr = g.GNr");
    while (sqlite3_step(join) == SQLITE_ROW) {
        auto& row = rows.emplace_back();
        for (const int column : {0, 3, 4, 5})
            row[static_cast<std::size_t>(column)].number = sqlite3_column_int64(join, column);
        for (const int column : {1, 2})
            row[static_cast<std::size_t>(column)].text =
                reinterpret_cast<const char*>(sqlite3_column_text(join, column));
    }
    sqlite3_finalize(join);
}

void benchMonthList(const QString& folder) {
    RawFile file(folder + u"/uw01.mdb"_qs);
    std::vector<std::array<RawCell, 6>> rows;
    Program program(folder);
    program.start();
    logIn();
    Fangbuch& form = screen<Fangbuch>();
    const auto fill = [&] {
        modFangbuch::loadTblFList(form.pb);
        form.tblFList->publish();
    };
    printRow("loadTblFList, catches of a month", byTurns(5, fill, [&] { rawJoin(file, rows); }),
             "join stepped, cells copied", 2.0);
    printGrid(double(form.tblFList->memoryInUse()), form.tblFList->rowCount());
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

void benchStart(const QString& folder, const QString& empty) {
    constexpr int runs = 9;
    std::vector<double> logins, books, emptyLogins, emptyBooks;
    for (int run = 0; run < runs; ++run) {
        const Start small = startOnce(empty);
        const Start large = startOnce(folder);
        emptyLogins.push_back(small.toLogin);
        emptyBooks.push_back(small.toCatchBook);
        logins.push_back(large.toLogin);
        books.push_back(large.toCatchBook);
    }
    printRow("start to login", {median(logins), median(emptyLogins)}, "with an empty file", 1.3);
    printRow("login to catch book", {median(books), median(emptyBooks)}, "with an empty file", 1.3);
}

} // namespace

int main(int argc, char* argv[]) {
    NoBoxes boxes;
    BenchDesk desk(argc, argv, boxes);
    benchMonthList(desk.club());
    benchStart(desk.club(), desk.club(emptyClub));
}
