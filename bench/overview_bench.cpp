// The contacts on the screen: filling the overview, opening a category, searching.

#include "DataTable.h"
#include "KontaktUebers.h"
#include "Measure.h"
#include "Program.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"
#include "RawFills.h"
#include "Screens.h"
#include "Session.h"
#include "SqlFunctions.h"
#include "SqlNames.h"
#include "SuchKont.h"
#include "modKontakt.h"

#include <string>

using namespace Qt::StringLiterals;

namespace {

/// The category with the most contacts.
constexpr int crowdedNumber = 1;

struct RawContact {
    int number = 0;
    double birthday = 0;
    std::string texts[7];
};

int columnOf(sqlite3_stmt* rows, const char* name) {
    int column = 0;
    while (sqlite3_stricmp(sqlite3_column_name(rows, column), name) != 0) ++column;
    return column;
}

/// The same statement, with the shown cells copied.
void rawCategory(RawFile& file, std::vector<RawContact>& rows) {
    rows.clear();
    sqlite3_stmt* of =
        file.prepare("SELECT * FROM Kontakt WHERE KategoNr = " + QByteArray::number(crowdedNumber));
    std::vector<int> places;
    for (const char* shown :
         {"KNr", "GebDatum", "Firma", "Anrede", "Nachname", "Vorname", "Tel1", "Fax", "EMail"})
        places.push_back(columnOf(of, shown));
    while (sqlite3_step(of) == SQLITE_ROW) {
        RawContact& row = rows.emplace_back();
        row.number = sqlite3_column_int(of, places[0]);
        row.birthday = sqlite3_column_double(of, places[1]);
        for (std::size_t i = 0; i < 7; ++i)
            row.texts[i] = reinterpret_cast<const char*>(sqlite3_column_text(of, places[i + 2]));
    }
    sqlite3_finalize(of);
}

/// The hits of a search with the same comparison. Copies their cells and the names of their categories.
void rawSearch(RawFile& file, const QByteArray& word, std::vector<RawContact>& rows) {
    rows.clear();
    const QByteArray like = QByteArray(sqlname::like) + "(%1, '" + word + "*')";
    const auto of = [&](const char* column) { return QByteArray(like).replace("%1", column); };
    sqlite3_stmt* hits = file.prepare("SELECT KNr, KategoNr, Firma, Nachname, Vorname FROM Kontakt WHERE " +
                                      of("Vorname") + " OR " + of("Nachname") + " OR " + of("Firma"));
    sqlite3_stmt* name = file.prepare("SELECT Kategorie FROM Katego WHERE KategoNr = ?1");
    while (sqlite3_step(hits) == SQLITE_ROW) {
        RawContact& row = rows.emplace_back();
        row.number = sqlite3_column_int(hits, 0);
        sqlite3_bind_int(name, 1, sqlite3_column_int(hits, 1));
        sqlite3_step(name);
        row.texts[3] = reinterpret_cast<const char*>(sqlite3_column_text(name, 0));
        sqlite3_reset(name);
        for (int i = 0; i < 3; ++i)
            row.texts[i] = reinterpret_cast<const char*>(sqlite3_column_text(hits, i + 2));
    }
    sqlite3_finalize(hits);
    sqlite3_finalize(name);
}

void benchFill(RawFile& file) {
    printRow("overview of all categories",
             byTurns(
                 5, [] { modKontakt::FuelleKontaktUebersicht(); }, [&] { rawCounts(file); }),
             "its statements, to their ends", 2.0);
}

void benchOpening(RawFile& file) {
    std::vector<RawContact> rows;
    DataTable* grid = the<KontaktUebers>().tblKUebers;
    const auto open = [&] {
        modKontakt::KategorieAufklappen(crowdedNumber - 1, crowdedNumber);
        grid->publish();
    };
    printRow("opening the largest category", byTurns(7, open, [&] { rawCategory(file, rows); }),
             "bare query, cells copied", 2.5);
}

void benchSearch(RawFile& file, const char* what, const QByteArray& word) {
    std::vector<RawContact> rows;
    const Pair seconds = byTurns(
        5, [&] { modKontakt::SucheKontakt(QString::fromUtf8(word), 0); },
        [&] { rawSearch(file, word, rows); });
    printRow(what, seconds, "bare query, same comparison", 2.0);
    if (the<SuchKont>().tblSuch->rowCount() != int(rows.size())) std::abort();
}

} // namespace

int main(int argc, char* argv[]) {
    NoBoxes boxes;
    BenchDesk desk(argc, argv, boxes);
    RawFile file(desk.club() + u"/uw01.mdb"_s);
    engine::registerSqlFunctions(file.handle());
    Program program(desk.club());
    program.start();
    logIn();
    benchFill(file);
    benchOpening(file);
    benchSearch(file, "search, hits for a name", "Müller-12");
    benchSearch(file, "search, a fifth of all", "Firma 1");
}
