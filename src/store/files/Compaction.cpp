#include "Compaction.h"

#include "Connection.h"
#include "Essentials.h"
#include "Salvage.h"
#include "UnfinishedFile.h"

#include <QFile>
#include <QHash>

namespace {

/// A file and its copy, which the same connection knows as main and copy.
class Compaction {
public:
    Compaction(const QString& source, const QString& target, const QString& password);
    void run();

private:
    struct SchemaObject {
        QString name;
        QByteArray sql;
    };

    void makeEmptyCopy(const QString& source) const;
    void attachCopy(const QString& password);
    QList<SchemaObject> schemaObjects(const QByteArray& condition);
    void create(const SchemaObject& object);
    /// Gives how many there were.
    qint64 copyRows(const QString& table);
    void copyCounters();
    void copyMarks();
    void copyAll();
    bool hasRows(const QString& table, qint64 count);
    void verify();

    UnfinishedPath m_target;
    cursors::Connection m_connection;
    QList<SchemaObject> m_tables;
    QHash<QString, qint64> m_counts; ///< so many rows were copied
};

Compaction::Compaction(const QString& source, const QString& target, const QString& password)
    : m_target(target)
    , m_connection(source, password, cursors::Connection::Access::ReadWrite) {
    makeEmptyCopy(source);
    attachCopy(password);
}

/// Who may not read the original shall not read its copy either, not even while it grows.
void Compaction::makeEmptyCopy(const QString& source) const {
    QFile copy(m_target.path());
    const bool made = copy.open(QIODevice::WriteOnly | QIODevice::NewOnly);
    if (!made || !copy.setPermissions(QFile::permissions(source)))
        throw runtimeError(RuntimeError::accessDenied);
}

void Compaction::attachCopy(const QString& password) {
    engine::Statement attach = m_connection.prepare("ATTACH ?1 AS copy KEY ?2");
    attach.bind(1, m_target.path());
    attach.bind(2, password);
    attach.run();
    m_connection.execute("PRAGMA copy.cipher_compatibility = 3");
    // Makes the entry in the folder last as well.
    m_connection.execute("PRAGMA copy.synchronous = EXTRA");
    // Indexes are sorted in this much memory.
    m_connection.execute("PRAGMA main.cache_size = -131072");
    m_connection.execute("PRAGMA copy.cache_size = -131072");
}

QList<Compaction::SchemaObject> Compaction::schemaObjects(const QByteArray& condition) {
    QList<SchemaObject> objects;
    engine::Statement found =
        m_connection.prepare("SELECT name, sql FROM main.sqlite_master WHERE sql IS NOT NULL AND " +
                             condition + " AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY rowid");
    while (found.step()) objects.push_back({found.text(0), found.text(1).toUtf8()});
    return objects;
}

/// The library keeps every definition as CREATE, what it is, its name and the rest.
void Compaction::create(const SchemaObject& object) {
    for (const QByteArray kind :
         {"CREATE TABLE ", "CREATE INDEX ", "CREATE UNIQUE INDEX ", "CREATE VIEW ", "CREATE TRIGGER "})
        if (object.sql.startsWith(kind))
            return m_connection.execute(kind + "copy." + object.sql.sliced(kind.size()));
    throw runtimeError(RuntimeError::badArgument);
}

/// Where both tables are alike, the library hands the rows over as they are stored.
qint64 Compaction::copyRows(const QString& table) {
    m_connection.execute("INSERT INTO copy." + quotedName(table) + " SELECT * FROM main." +
                         quotedName(table));
    engine::Statement rows = m_connection.prepare("SELECT changes()");
    rows.step();
    return rows.integer(0);
}

/// Numbers that were given out once are not given out again, so the counters go along.
void Compaction::copyCounters() {
    m_connection.execute("DELETE FROM copy.sqlite_sequence");
    copyRows(QStringLiteral("sqlite_sequence"));
}

/// Numbers of the file itself by which other tools know it.
void Compaction::copyMarks() {
    for (const QByteArray mark : {"user_version", "application_id"}) {
        engine::Statement value = m_connection.prepare("PRAGMA main." + mark);
        if (!value.step()) continue;
        const QByteArray number = QByteArray::number(value.integer(0));
        m_connection.execute("PRAGMA copy." + mark + " = " + number);
    }
}

void Compaction::copyAll() {
    for (const SchemaObject& table : m_tables) {
        create(table);
        m_counts[table.name] = copyRows(table.name);
    }
    copyCounters();
    copyMarks();
    for (const SchemaObject& object : schemaObjects("type <> 'table'")) create(object);
}

bool Compaction::hasRows(const QString& table, qint64 count) {
    engine::Statement found = m_connection.prepare("SELECT COUNT(*) FROM copy." + quotedName(table));
    return found.step() && found.integer(0) == count;
}

void Compaction::verify() {
    // Forgets what was written, so that it is read from the disk again.
    m_connection.execute("PRAGMA shrink_memory");
    // Whether the indexes know every row need not be asked: they were just made from the rows.
    engine::Statement check = m_connection.prepare("PRAGMA copy.quick_check");
    bool whole = check.step() && check.text(0) == u"ok";
    for (auto table = m_counts.cbegin(); table != m_counts.cend(); ++table)
        whole = whole && hasRows(table.key(), table.value());
    // Not the number of a damaged file: the original is whole, and nothing in it is to be guessed.
    if (!whole) throw runtimeError(RuntimeError::pathFailed);
}

/// The lock on the original outlasts the transaction, until the connection ends: what another process wrote
/// before the copy is in the original's place would be lost with the original.
void Compaction::run() {
    m_connection.execute("PRAGMA main.locking_mode = EXCLUSIVE");
    m_connection.execute("BEGIN EXCLUSIVE");
    m_tables = schemaObjects("type = 'table'");
    copyAll();
    m_connection.execute("COMMIT");
    verify();
    m_connection.execute("DETACH copy");
    m_target.keep();
}

/// A whole file may still lack the record of `System`, without which no start comes to its end.
void restoreParametersOf(const QString& target, const QString& password) {
    try {
        restoreParameters(target, password);
    } catch (const RuntimeError&) {
        // Left over, it would stand in the way of the next repair.
        QFile::remove(target);
        throw;
    }
}

} // namespace

std::shared_ptr<const void> compactFile(const QString& source, const QString& target, const QString& password,
                                        const QString& keptIn) {
    try {
        const auto compaction = std::make_shared<Compaction>(source, target, password);
        compaction->run();
        if (!keptIn.isEmpty()) restoreParametersOf(target, password);
        return compaction;
    } catch (const RuntimeError& error) {
        if (!error.is(RuntimeError::damagedFile) || keptIn.isEmpty()) throw;
    }
    return salvageFile(source, target, password, keptIn);
}
