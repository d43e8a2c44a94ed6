// The contacts of a very large club on the screen: the overview's counts, the opening of a category, the
// search.

#include "DataTable.h"
#include "KontaktUebers.h"
#include "Measure.h"
#include "Program.h"
#include "ProgramFolder.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"
#include "Screens.h"
#include "Session.h"
#include "SqlFunctions.h"
#include "SuchKont.h"
#include "modKontakt.h"

#include <QTemporaryDir>
#include <string>

namespace {

constexpr int contacts = 50'000;
constexpr int categories = 20;
/// So many of the contacts lie in one category, the others in the rest by turns.
constexpr int crowded = 20'000;
constexpr int crowdedNumber = 3;

int categoryOf(int contact) {
    return contact <= crowded ? crowdedNumber : crowdedNumber + 1 + contact % (categories - crowdedNumber);
}

void addContacts(RawFile& file) {
    sqlite3_stmt* category =
        file.prepare("INSERT INTO Katego(KategoNr, Kategorie) VALUES (?1, 'Kategorie ' || ?1)");
    sqlite3_stmt* contact = file.prepare(
        "INSERT INTO Kontakt(KNr, KategoNr, Anrede, Nachname, Vorname, Strasse, PLZ, Ort, Tel1, Tel2, Mobil, "
        "Fax, "
        "EMail, Firma, GebDatum, Notiz) VALUES (?1, ?2, 'Herr', 'Müller-' || ?1, 'Jörg', 'Straße der Fischer "
        "' || "
        "?1, '01067', 'Mühlhausen', '0351 ' || ?1, '', '0170 ' || ?1, '', 'm' || ?1 || '@example.org', "
        "'Firma ' || ?1, 15000 + ?1 % 20000, '')");
    file.execute("BEGIN");
    for (int number = crowdedNumber; number <= categories; ++number) {
        sqlite3_bind_int(category, 1, number);
        sqlite3_step(category);
        sqlite3_reset(category);
    }
    for (int number = 1; number <= contacts; ++number) {
        sqlite3_bind_int(contact, 1, number);
        sqlite3_bind_int(contact, 2, categoryOf(number));
        sqlite3_step(contact);
        sqlite3_reset(contact);
    }
    file.execute("COMMIT");
    sqlite3_finalize(category);
    sqlite3_finalize(contact);
}

/// Every contact of every category, not looked at.
int rawCounts(RawFile& file) {
    sqlite3_stmt* names = file.prepare("SELECT KategoNr, Kategorie FROM Katego");
    int rows = 0;
    while (sqlite3_step(names) == SQLITE_ROW) {
        sqlite3_stmt* of = file.prepare("SELECT * FROM Kontakt WHERE KategoNr = " +
                                        QByteArray::number(sqlite3_column_int(names, 0)));
        while (sqlite3_step(of) == SQLITE_ROW) ++rows;
        sqlite3_finalize(of);
    }
    sqlite3_finalize(names);
    return rows;
}

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

/// The same statement, the cells on show copied.
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

/// The hits of a search with the same comparison, their cells and the names of their categories copied.
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
    constexpr int runs = 5;
    const double floor = medianSeconds(runs, [&] { rawCounts(file); });
    const double fill = medianSeconds(runs, [] { modKontakt::FuelleKontaktUebersicht(); });
    printRow("overview, 50,000 contacts in 20 categories", fill, "its statements, to their ends", floor, 2.0);
}

void benchOpening(RawFile& file) {
    constexpr int runs = 7;
    std::vector<RawContact> rows;
    const double floor = medianSeconds(runs, [&] { rawCategory(file, rows); });
    DataTable* grid = screen<KontaktUebers>().tblKUebers;
    const double open = medianSeconds(runs, [&] {
        modKontakt::KategorieAufklappen(crowdedNumber - 1, crowdedNumber);
        grid->publish();
    });
    printRow("opening a category of 20,000", open, "bare query, cells copied", floor, 2.5);
}

void benchSearch(RawFile& file, const char* what, const QByteArray& word) {
    constexpr int runs = 5;
    std::vector<RawContact> rows;
    const double floor = medianSeconds(runs, [&] { rawSearch(file, word, rows); });
    const double search = medianSeconds(runs, [&] { modKontakt::SucheKontakt(QString::fromUtf8(word), 0); });
    if (screen<SuchKont>().tblSuch->rowCount() != int(rows.size())) std::abort();
    printRow(what, search, "bare query, same comparison", floor, 2.0);
}

} // namespace

int main(int argc, char* argv[]) {
    NoBoxes boxes;
    const BenchDesk desk(argc, argv, boxes);
    QTemporaryDir temporary;
    makeProgramFolder(temporary.path(), benchYear, false);
    RawFile file(temporary.filePath(u"uw01.mdb"_qs));
    file.execute("PRAGMA cache_size = -32768");
    addContacts(file);
    registerSqlFunctions(file.handle());
    Program program(temporary.path());
    program.start();
    logIn();
    benchFill(file);
    benchOpening(file);
    benchSearch(file, "search in 50,000 contacts, 10 hits", "Müller-1234");
    benchSearch(file, "the same, 11,111 hits", "Firma 1");
}
