#include "Compaction.h"

#include "Salvage.h"
#include "UnfinishedFile.h"

#include <QFile>

namespace {

struct SchemaObject {
    QString name;
    QByteArray sql;
};

QList<SchemaObject> schemaObjects(Connection& source, const QByteArray& condition) {
    QList<SchemaObject> objects;
    Statement found =
        source.prepare("SELECT name, sql FROM sqlite_master WHERE sql IS NOT NULL AND " + condition +
                       " AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY rowid");
    while (found.step()) objects.push_back({found.text(0), found.text(1).toUtf8()});
    return objects;
}

/// Where both tables are alike, the library hands the rows over as they are stored.
void copyRows(Connection& target, const QString& table) {
    target.execute("INSERT INTO main." + quotedName(table) + " SELECT * FROM original." + quotedName(table));
}

qint64 countRows(Connection& connection, const QString& table) {
    Statement count = connection.prepare("SELECT COUNT(*) FROM main." + quotedName(table));
    count.step();
    return count.integer(0);
}

QList<SchemaObject> userTables(Connection& connection) { return schemaObjects(connection, "type = 'table'"); }

/// Numbers that were given out once are not given out again, so the counters go along.
void copyCounters(Connection& target) {
    target.execute("DELETE FROM main.sqlite_sequence");
    copyRows(target, QStringLiteral("sqlite_sequence"));
}

/// Numbers of the file itself by which other tools know it.
void copyMarks(Connection& source, Connection& target) {
    for (const QByteArray mark : {"user_version", "application_id"}) {
        Statement value = source.prepare("PRAGMA " + mark);
        if (value.step()) target.execute("PRAGMA " + mark + " = " + QByteArray::number(value.integer(0)));
    }
}

void copyAll(Connection& source, Connection& target) {
    const QList<SchemaObject> tables = userTables(source);
    for (const SchemaObject& table : tables) {
        target.execute(table.sql);
        copyRows(target, table.name);
    }
    copyCounters(target);
    copyMarks(source, target);
    for (const SchemaObject& object : schemaObjects(source, "type <> 'table'")) target.execute(object.sql);
}

void requireAllRows(Connection& source, Connection& copy, const QString& path) {
    for (const SchemaObject& table : userTables(source))
        if (countRows(source, table.name) != countRows(copy, table.name)) throw runtimeError(3343, path);
}

void copyFile(const QString& source, const QString& target, const QString& password) {
    Connection original(source, password, Connection::Access::ReadWrite);
    UnfinishedFile copy(target, password);
    // Who may not read the original shall not read its copy either, not even while it grows.
    if (!QFile::setPermissions(target, QFile::permissions(source))) throw runtimeError(70);
    // Nobody may write to the original while it is read table by table.
    original.execute("BEGIN");
    copy.attach(source, password);
    // Indexes are sorted in this much memory.
    copy.connection().execute("PRAGMA cache_size = -131072");
    copyAll(original, copy.connection());
    copy.write();
    copy.verify();
    requireAllRows(original, copy.connection(), target);
    original.execute("COMMIT");
    copy.finish();
}

} // namespace

void compactFile(const QString& source, const QString& target, const QString& password) {
    constexpr int damaged = 3343;
    requireNewFile(target);
    try {
        copyFile(source, target, password);
    } catch (const RuntimeError& error) {
        if (error.number != damaged) throw;
        salvageFile(source, target, password);
    }
}
