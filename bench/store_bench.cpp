// The store: a lookup by name as it runs for every save, a seek by key and a walk over a table of a million
// rows.

#include "DBEngine.h"
#include "Measure.h"
#include "NewDatabase.h"
#include "RawFile.h"
#include "SqlFunctions.h"
#include "SqlText.h"

#include <QTemporaryDir>
#include <array>

namespace {

constexpr int species = 30;
constexpr int entries = 1'000'000;
constexpr int rounds = 20'000;
constexpr int runs = 5;

std::array<QString, species> speciesNames() {
    std::array<QString, species> names;
    for (int i = 0; i < species; ++i) names[static_cast<std::size_t>(i)] = u"Fischart %1"_qs.arg(i + 1);
    return names;
}

void fill(RawFile& file) {
    file.execute("BEGIN");
    file.execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 30) "
                 "INSERT INTO Fisch (FName) SELECT 'Fischart ' || i FROM n");
    file.execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000000) "
                 "INSERT INTO Fang (FangJahr, FangMonat, FischNr, GNr, Notiz, Anzahl, Gewicht) "
                 "SELECT 2000 + i % 20, 1 + i % 12, 1 + i % 30, 1, '', i % 7, i % 5000 FROM n");
    file.execute("COMMIT");
}

/// The same keys in the same scattered order for both sides.
int scatteredKey(int round) { return static_cast<int>((round * 7919LL) % entries) + 1; }

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
            Recordset fish = database.OpenRecordset(u"SELECT FNr FROM Fisch WHERE FName = "_qs +
                                                        quoted(names[static_cast<std::size_t>(i % species)]),
                                                    dbOpenDynaset);
            if (fish.RecordCount() == 0 || fish.Fields(u"FNr"_qs).Value().number() == 0) std::abort();
            fish.Close();
        }
    });
}

double rawSeeks(RawFile& file) {
    sqlite3_stmt* entry = file.prepare("SELECT Anzahl FROM Fang WHERE FangNr = ?1");
    return medianSeconds(runs, [&] {
        for (int i = 0; i < rounds; ++i) {
            sqlite3_bind_int(entry, 1, scatteredKey(i));
            if (sqlite3_step(entry) != SQLITE_ROW || sqlite3_column_int(entry, 0) > 7) std::abort();
            sqlite3_reset(entry);
        }
    });
}

double storeSeeks(Database& database) {
    Recordset entry = database.OpenRecordset(u"Fang"_qs, dbOpenTable);
    entry.Index(u"PrimaryKey"_qs);
    return medianSeconds(runs, [&] {
        for (int i = 0; i < rounds; ++i) {
            entry.Seek(u"="_qs, scatteredKey(i));
            if (entry.NoMatch() || entry.Fields(u"Anzahl"_qs).Value().number() > 7) std::abort();
        }
    });
}

double rawWalk(RawFile& file) {
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

double storeWalk(Database& database) {
    return medianSeconds(runs, [&] {
        qint64 sum = 0;
        Recordset all = database.OpenRecordset(u"SELECT FangNr, Anzahl, Notiz FROM Fang"_qs, dbOpenDynaset);
        const Field number = all.Fields(u"FangNr"_qs);
        const Field count = all.Fields(u"Anzahl"_qs);
        const Field note = all.Fields(u"Notiz"_qs);
        for (; !all.Eof(); all.MoveNext())
            sum += number.Value().number() + count.Value().number() + note.Value().text().size();
        if (sum < entries) std::abort();
        all.Close();
    });
}

} // namespace

int main() {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"uw01.mdb"_qs);
    createDatabase(path, u"qx-1987-nkr"_qs, 2026);
    RawFile file(path);
    registerSqlFunctions(file.handle());
    file.execute("PRAGMA cache_size = -32768");
    fill(file);
    Database database = DBEngine::Workspaces(0).OpenDatabase(path, false, false, u";pwd=qx-1987-nkr"_qs);
    const auto names = speciesNames();

    printRow("20,000 lookups among 30 names", storeLookups(database, names), "bound and stepped",
             rawLookups(file, names), 4.0);
    printRow("20,000 seeks among 1,000,000 keys", storeSeeks(database), "keyed select", rawSeeks(file), 4.0);
    printRow("walk over 1,000,000 rows, three fields", storeWalk(database), "stepped and copied",
             rawWalk(file), 2.0);
}
