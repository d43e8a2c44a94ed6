#include "Compaction.h"

#include "Essentials.h"
#include "Salvage.h"
#include "UnfinishedFile.h"

#include <QFile>

namespace {

/// A file and its copy, which the same connection knows as main and copy.
class Compaction {
public:
    Compaction(const QString& source, const QString& target, const QString& password);
    void run();
    /// Without it the copy is removed in the end.
    void keep() { m_target.keep(); }

private:
    struct SchemaObject {
        QString name;
        QByteArray sql;
    };

    void makeEmptyCopy(const QString& source) const;
    void attachCopy(const QString& password);
    QList<SchemaObject> schemaObjects(const QByteArray& condition);
    void create(const SchemaObject& object);
    int copyRows(const QString& table);
    void copyMarks();
    void copyAll();
    void verify();

    UnfinishedPath m_target;
    cursors::Connection m_connection;
    QHash<QString, int> m_counts; ///< copied rows by table
};

Compaction::Compaction(const QString& source, const QString& target, const QString& password)
    : m_target(target)
    , m_connection(source, password, cursors::Connection::Access::ReadWrite) {
    makeEmptyCopy(source);
    attachCopy(password);
}

/// Gives the copy the original's permissions while it is empty, so that it is never readable by more users.
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
    // EXTRA makes the folder's entry last as well.
    m_connection.execute("PRAGMA copy.synchronous = EXTRA");
    // SQLite sorts indexes within this much memory.
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

/// SQLite stores each definition as CREATE, the kind, the name and the rest.
void Compaction::create(const SchemaObject& object) {
    for (const QByteArray kind :
         {"CREATE TABLE ", "CREATE INDEX ", "CREATE UNIQUE INDEX ", "CREATE VIEW ", "CREATE TRIGGER "})
        if (object.sql.startsWith(kind))
            return m_connection.execute(kind + "copy." + object.sql.sliced(kind.size()));
    throw runtimeError(RuntimeError::badArgument);
}

/// If both tables have the same definition, SQLite copies rows in their stored form. Returns their number.
int Compaction::copyRows(const QString& table) {
    m_connection.execute("INSERT INTO copy." + quotedName(table) + " SELECT * FROM main." +
                         quotedName(table));
    return m_connection.changes();
}

/// Copies the numbers in the file's header by which other tools recognise it.
void Compaction::copyMarks() {
    for (const QByteArray mark : {"user_version", "application_id"}) {
        const qint64 number = m_connection.number("PRAGMA main." + mark);
        m_connection.execute("PRAGMA copy." + mark + " = " + QByteArray::number(number));
    }
}

void Compaction::copyAll() {
    for (const SchemaObject& table : schemaObjects("type = 'table'")) {
        create(table);
        m_counts[table.name] = copyRows(table.name);
    }
    // The counters too, so that no number is given out again.
    m_connection.execute("DELETE FROM copy.sqlite_sequence");
    copyRows(QStringLiteral("sqlite_sequence"));
    copyMarks();
    for (const SchemaObject& object : schemaObjects("type <> 'table'")) create(object);
}

void Compaction::verify() {
    // Empties the cache, so that the copy is read from the disk.
    m_connection.execute("PRAGMA shrink_memory");
    // quick_check skips the indexes, which were just built from the rows.
    bool whole = m_connection.text("PRAGMA copy.quick_check") == u"ok";
    for (auto table = m_counts.cbegin(); whole && table != m_counts.cend(); ++table)
        whole = m_connection.number("SELECT COUNT(*) FROM copy." + quotedName(table.key())) == table.value();
    // Not the number of a damaged file: the original is whole, and nothing in it is to be guessed.
    if (!whole) throw runtimeError(RuntimeError::pathFailed);
}

/// Locks the original until the connection ends. Otherwise another process could write to it before the copy
/// takes its place, and these changes would be lost.
void Compaction::run() {
    m_connection.execute("PRAGMA main.locking_mode = EXCLUSIVE");
    m_connection.execute("BEGIN EXCLUSIVE");
    copyAll();
    m_connection.execute("COMMIT");
    verify();
    m_connection.execute("DETACH copy");
}

} // namespace

std::shared_ptr<const void> compactFile(const QString& source, const QString& target, const QString& password,
                                        const QString& keptIn) {
    try {
        const auto compaction = std::make_shared<Compaction>(source, target, password);
        compaction->run();
        // An undamaged file may still lack the row of `System`, without which the program can't start.
        if (!keptIn.isEmpty()) restoreParameters(target, password);
        compaction->keep();
        return compaction;
    } catch (const RuntimeError& error) {
        if (!error.is(RuntimeError::damagedFile) || keptIn.isEmpty()) throw;
    }
    return salvageFile(source, target, password, keptIn);
}
