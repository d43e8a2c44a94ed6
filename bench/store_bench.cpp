// The store: a lookup by name as in every save, a seek by key, a walk over a table.

#include "DBEngine.h"
#include "Measure.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"
#include "SqlFunctions.h"
#include "SqlText.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int species = clubKinds;
constexpr int rounds = 20'000;
constexpr int runs = 5;

std::array<QString, species> speciesNames() {
    std::array<QString, species> names;
    for (int i = 0; i < species; ++i) names[static_cast<std::size_t>(i)] = u"Fischart %1"_s.arg(i + 1);
    return names;
}

/// A key for each round, in the same scattered order for both sides.
int scatteredKey(int round, int entries) { return static_cast<int>((round * 7919LL) % entries) + 1; }

double rawLookups(RawFile& file, const std::array<QString, species>& names) {
    sqlite3_stmt* lookup = file.prepare("SELECT FNr FROM Fisch WHERE FName = ?1 COLLATE uw_text");
    return medianSeconds(runs, [&] {
        for (int i = 0; i < rounds; ++i) {
            const QByteArray name = names[static_cast<std::size_t>(i % species)].toUtf8();
            sqlite3_bind_text(lookup, 1, name.constData(), static_cast<int>(name.size()), SQLITE_TRANSIENT);
            sqlite3_step(lookup);
            if (sqlite3_column_int(lookup, 0) == 0) std::abort();
            sqlite3_reset(lookup);
        }
    });
}

double storeLookups(Database& database, const std::array<QString, species>& names) {
    return medianSeconds(runs, [&] {
        for (int i = 0; i < rounds; ++i) {
            Recordset fish = database.OpenRecordset(u"SELECT FNr FROM Fisch WHERE FName = "_s +
                                                        quoted(names[static_cast<std::size_t>(i % species)]),
                                                    dbOpenDynaset);
            if (fish.RecordCount() == 0 || fish.Fields(u"FNr"_s).Value().number() == 0) std::abort();
            fish.Close();
        }
    });
}

double rawSeeks(RawFile& file, int entries) {
    sqlite3_stmt* entry = file.prepare("SELECT Anzahl FROM Fang WHERE FangNr = ?1");
    return medianSeconds(runs, [&] {
        for (int i = 0; i < rounds; ++i) {
            sqlite3_bind_int(entry, 1, scatteredKey(i, entries));
            if (sqlite3_step(entry) != SQLITE_ROW || sqlite3_column_int(entry, 0) > 5) std::abort();
            sqlite3_reset(entry);
        }
    });
}

double storeSeeks(Database& database, int entries) {
    Recordset entry = database.OpenRecordset(u"Fang"_s, dbOpenTable);
    entry.Index(u"PrimaryKey"_s);
    return medianSeconds(runs, [&] {
        for (int i = 0; i < rounds; ++i) {
            entry.Seek(u"="_s, scatteredKey(i, entries));
            if (entry.NoMatch() || entry.Fields(u"Anzahl"_s).Value().number() > 5) std::abort();
        }
    });
}

double rawWalk(RawFile& file, int entries) {
    sqlite3_stmt* all = file.prepare("SELECT FangNr, Anzahl, Notiz FROM Fang");
    return medianSeconds(runs, [&] {
        qint64 sum = 0;
        while (sqlite3_step(all) == SQLITE_ROW) {
            const auto* note = reinterpret_cast<const char*>(sqlite3_column_text(all, 2));
            sum += sqlite3_column_int(all, 0) + sqlite3_column_int(all, 1) + QString::fromUtf8(note).size();
        }
        if (sum < entries) std::abort();
        sqlite3_reset(all);
    });
}

double storeWalk(Database& database, int entries) {
    return medianSeconds(runs, [&] {
        qint64 sum = 0;
        Recordset all = database.OpenRecordset(u"SELECT FangNr, Anzahl, Notiz FROM Fang"_s, dbOpenDynaset);
        const Recordset::Field number = all.Fields(u"FangNr"_s);
        const Recordset::Field count = all.Fields(u"Anzahl"_s);
        const Recordset::Field note = all.Fields(u"Notiz"_s);
        for (; !all.Eof(); all.MoveNext())
            sum += number.Value().number() + count.Value().number() + note.Value().text().size();
        if (sum < entries) std::abort();
        all.Close();
    });
}

} // namespace

int main(int argc, char* argv[]) {
    NoBoxes boxes;
    BenchDesk desk(argc, argv, boxes);
    const QString path = desk.club() + u"/uw01.mdb"_s;
    const int catches = desk.size().catches();
    RawFile file(path);
    engine::registerSqlFunctions(file.handle());
    Database database = DBEngine::Workspaces(0).OpenDatabase(path, false, false, u";pwd=qx-1987-nkr"_s);
    const auto names = speciesNames();
    printRow("20,000 lookups among 30 names", {storeLookups(database, names), rawLookups(file, names)},
             "bound and stepped", 4.0);
    printRow("20,000 seeks among all catches", {storeSeeks(database, catches), rawSeeks(file, catches)},
             "keyed select", 4.0);
    printRow("walk over all catches, three fields", {storeWalk(database, catches), rawWalk(file, catches)},
             "stepped and copied", 2.0);
}
