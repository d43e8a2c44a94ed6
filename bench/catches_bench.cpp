// The catch book: its grid over a month with 100,000 entries, and the start of the program over a million.

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
#include <QTemporaryDir>
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
    constexpr int runs = 5;
    RawFile file(folder + u"/uw01.mdb"_qs);
    std::vector<std::array<RawCell, 6>> rows;
    const double floor = medianSeconds(runs, [&] { rawJoin(file, rows); });

    Program program(folder);
    program.start();
    logIn();
    Fangbuch& form = screen<Fangbuch>();
    const double fill = medianSeconds(runs, [&] {
        modFangbuch::loadTblFList(form.pb);
        form.tblFList->publish();
    });
    printRow("loadTblFList, month of 100,000 entries", fill, "join stepped, cells copied", floor, 2.0);
    std::printf("%-44s %10.0f bytes a row (at most 250), %d rows\n", "its grid",
                double(form.tblFList->memoryInUse()) / form.tblFList->rowCount(), form.tblFList->rowCount());
}

void startOnce(const QString& folder, double& toLogin, double& toCatchBook) {
    Program program(folder);
    toLogin = medianSeconds(1, [&] {
        program.start();
        QApplication::processEvents();
    });
    toCatchBook = medianSeconds(1, [&] {
        logIn();
        QApplication::processEvents();
    });
}

struct StartTimes {
    double toLogin;
    double toCatchBook;
};

StartTimes medianStart(const QString& folder) {
    constexpr int runs = 9;
    std::vector<double> logins;
    std::vector<double> books;
    for (int run = 0; run < runs; ++run) startOnce(folder, logins.emplace_back(), books.emplace_back());
    std::nth_element(logins.begin(), logins.begin() + runs / 2, logins.end());
    std::nth_element(books.begin(), books.begin() + runs / 2, books.end());
    return {logins[runs / 2], books[runs / 2]};
}

} // namespace

int main(int argc, char* argv[]) {
    NoBoxes boxes;
    const BenchDesk desk(argc, argv, boxes);
    QTemporaryDir temporary;
    const QString full = temporary.filePath(u"voll"_qs);
    const QString million = temporary.filePath(u"million"_qs);
    const QString empty = temporary.filePath(u"leer"_qs);
    makeFolderWithCatches(full, 1'000'000, 100'000);
    makeFolderWithCatches(million, 1'000'000, 30);
    makeFolderWithCatches(empty, 30, 30);

    benchMonthList(full);
    const StartTimes small = medianStart(empty);
    const StartTimes large = medianStart(million);
    printRow("start to login, a million catches", large.toLogin, "with 30 catches", small.toLogin, 1.3);
    printRow("login to catch book, a million catches", large.toCatchBook, "with 30 catches",
             small.toCatchBook, 1.3);
}
