#include "Essentials.h"

#include "Clock.h"
#include "NewDatabase.h"

#include <algorithm>
#include <array>

namespace {

struct Reference {
    const char* table;
    const char* field;
    const char* target;
};

constexpr auto references = std::to_array<Reference>({
    {"Fang", "FischNr", "Fisch"},
    {"Fang", "GNr", "Gewaesser"},
    {"Besatzung", "FNr", "Fisch"},
    {"Besatzung", "GNr", "Gewaesser"},
    {"Kontakt", "KategoNr", "Katego"},
    {"Mitglied", "KNr", "Kontakt"},
    {"Arbeit", "KNr", "Kontakt"},
    {"Benutzer", "GNr", "Gruppen"},
});

void raiseCounter(cursors::Connection& file, const QString& table, qint64 number) {
    engine::Statement add = file.prepare("INSERT INTO sqlite_sequence SELECT ?1, 0 WHERE NOT EXISTS "
                                         "(SELECT 1 FROM sqlite_sequence WHERE name = ?1)");
    add.bind(1, table);
    add.run();
    engine::Statement raise = file.prepare("UPDATE sqlite_sequence SET seq = max(seq, ?2) WHERE name = ?1");
    raise.bind(1, table);
    raise.bind(2, number);
    raise.run();
}

void restoreSystem(cursors::Connection& file) {
    if (file.number("SELECT COUNT(*) FROM \"System\"") > 0) return;
    // Catches and hours are entered in the current fishing year. A later year than the calendar's is a typing
    // error.
    const qint64 latest = std::max(file.number("SELECT MAX(\"FangJahr\") FROM \"Fang\""),
                                   file.number("SELECT MAX(\"Jahr\") FROM \"Arbeit\""));
    const int thisYear = today().year();
    seedSystem(file, latest > 0 && latest < thisYear ? static_cast<int>(latest) : thisYear);
}

/// Only a user who may manage users can give the others access again.
bool canAnybodyManageUsers(cursors::Connection& file) {
    return file.number("SELECT COUNT(*) FROM \"Benutzer\" JOIN \"Gruppen\" USING (\"GNr\") "
                       "WHERE \"Benutzerverwaltung\"") > 0;
}

/// Restores the groups first: users of the first group can then log in with their own passwords.
void restoreLogin(cursors::Connection& file) {
    if (canAnybodyManageUsers(file)) return;
    if (file.number("SELECT COUNT(*) FROM \"Gruppen\" WHERE \"Benutzerverwaltung\"") == 0) seedGroup(file);
    if (!canAnybodyManageUsers(file)) seedUser(file);
}

void restoreMembers(cursors::Connection& file) {
    file.execute("INSERT INTO \"Mitglied\" SELECT \"KNr\", 0, 0, 0, 0.0, 0.0, 0 FROM \"Kontakt\" WHERE "
                 "\"KategoNr\" IN (1, 2) AND \"KNr\" NOT IN (SELECT \"KNr\" FROM \"Mitglied\")");
}

} // namespace

void raiseCounters(cursors::Connection& file, const QHash<QString, qint64>& known) {
    for (auto counter = known.begin(); counter != known.end(); ++counter)
        if (const TableSpec* table = findTable(counter.key()); table && table->keyed)
            raiseCounter(file, table->name.toString(), counter.value());
    for (const Reference& reference : references) {
        const QByteArray highest =
            QByteArray("SELECT MAX(\"") + reference.field + "\") FROM \"" + reference.table + '"';
        raiseCounter(file, QString::fromLatin1(reference.target), file.number(highest));
    }
}

void restoreParameters(const QString& path, const QString& password) {
    cursors::Connection file(path, password, cursors::Connection::Access::ReadWrite);
    restoreSystem(file);
}

void restoreEssentials(cursors::Connection& file) {
    restoreSystem(file);
    seedCategories(file);
    restoreLogin(file);
    restoreMembers(file);
}
