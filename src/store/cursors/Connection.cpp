#include "Connection.h"

#include "Cursor.h"
#include "FileShape.h"
#include "PageReader.h"
#include "RawContent.h"
#include "SqlFunctions.h"

namespace cursors {

namespace {

/// Begins the keys of statements in SQLite's own SQL. The dialect refuses control characters.
constexpr QChar ownKey = u'\x10';

dialect::SelectPlan rowsPlan(const TableSpec& table) {
    dialect::SelectPlan plan{.sql = "SELECT rowid", .columns = {}, .editable = &table};
    for (const FieldSpec& field : table.fields) {
        plan.sql += ", " + quotedName(field.name);
        plan.columns.push_back({field.name.toString(), field.kind, static_cast<int>(plan.columns.size())});
    }
    plan.sql += " FROM " + quotedName(table.name) + " WHERE rowid >= ?1 ORDER BY rowid";
    return plan;
}

/// In an open file, whose password was right, a page that does not fit the key is damaged.
bool isDamage(const RuntimeError& error) {
    return error.is(RuntimeError::damagedFile) || error.is(RuntimeError::wrongPassword);
}

/// When a file can't be opened, the same failures have other numbers.
RuntimeError openError(const RuntimeError& error, const QString& path) {
    if (error.is(RuntimeError::lockedByOther)) return runtimeError(RuntimeError::fileInUse, path);
    if (error.is(RuntimeError::readOnly) || error.is(RuntimeError::cannotOpen))
        return runtimeError(RuntimeError::cannotOpen, path);
    // Nothing was asked yet that could be too much: the library does not know the format.
    if (error.is(RuntimeError::tooComplex) || error.is(RuntimeError::damagedFile))
        return runtimeError(RuntimeError::damagedFile, path);
    return error;
}

} // namespace

Connection::Connection(const QString& path, const QString& password, Access access) {
    try {
        if (access == Access::Create)
            openFile(path, password, access);
        else
            openExisting(path, password, access);
    } catch (const RuntimeError& error) {
        throw openError(error, path);
    }
}

/// Makes all checks before anything might change the file.
void Connection::openExisting(const QString& path, const QString& password, Access access) {
    engine::requireReadableFile(path);
    try {
        if (engine::isInterrupted(path))
            engine::requireKeyOfInterrupted(path, password);
        else
            engine::requirePages(path);
        openFile(path, password, access);
        // Takes back the half-written changes of a killed process. Fails if the password is wrong.
        number("SELECT COUNT(*) FROM sqlite_master");
        engine::requirePages(path, number("PRAGMA page_count"));
    } catch (const RuntimeError& error) {
        m_database.reset();
        // If the password opens other pages but not the first, the first is damaged.
        if (error.is(RuntimeError::wrongPassword) && engine::fitsOtherPages(path, password))
            throw runtimeError(RuntimeError::damagedFile, path);
        throw;
    }
    requireTables(path);
    if (access == Access::ReadWrite) leaveWriteAheadMode(path);
    cascadeDeletions();
}

void Connection::openFile(const QString& path, const QString& password, Access access) {
    m_database = engine::openFile(path, access);
    m_transaction.emplace(m_database.get());
    engine::setKey(m_database.get(), password);
    execute("PRAGMA foreign_keys = OFF");
    // A commit removes the journal. Only EXTRA makes that last: it flushes the folder too.
    execute("PRAGMA synchronous = EXTRA");
    execute("PRAGMA cache_size = -32768");
    // Overwrites deleted rows, so that a repair does not find them again.
    execute("PRAGMA secure_delete = ON");
    engine::registerSqlFunctions(m_database.get());
}

void Connection::requireTables(const QString& path) {
    engine::Statement named = prepare("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?1");
    for (const TableSpec& table : schemaTables()) {
        named.bind(1, table.name.toString());
        if (!named.step()) throw runtimeError(RuntimeError::damagedFile, path);
        named.reset();
    }
}

/// Ends the write-ahead mode that another tool may have set: its log would keep the newest rows beside the
/// file.
void Connection::leaveWriteAheadMode(const QString& path) {
    if (text("PRAGMA journal_mode") != u"wal") return;
    if (text("PRAGMA journal_mode = DELETE") != u"delete") throw runtimeError(RuntimeError::fileInUse, path);
}

/// Deletes the users of a deleted group. SQLite could enforce the relation in the file's schema, but only
/// with its opposite, which is not wanted: no user without a group.
void Connection::cascadeDeletions() {
    execute("CREATE TEMP TRIGGER uw_group_gone AFTER DELETE ON main.\"Gruppen\" "
            "BEGIN DELETE FROM \"Benutzer\" WHERE \"GNr\" = OLD.\"GNr\"; END");
}

void Connection::close() {
    std::optional<RuntimeError> failure;
    while (!m_cursors.empty()) {
        try {
            m_cursors.back()->close();
        } catch (const RuntimeError& error) {
            if (!failure) failure = error;
        }
    }
    m_statements.clear();
    m_database.reset();
    if (failure) throw *failure;
}

Loan Connection::select(QStringView source) {
    dialect::lexStatement(source, m_lexed);
    Loan loan = lend(m_lexed.key, [&] { return dialect::rewriteSelect(source, m_lexed); });
    int position = 1;
    for (const Value& literal : m_lexed.literals) loan->bind(position++, literal);
    return loan;
}

Loan Connection::statement(const QByteArray& sql) {
    return lend(ownKey + QString::fromUtf8(sql),
                [&] { return dialect::SelectPlan{.sql = sql, .columns = {}}; });
}

Loan Connection::rowsOf(const TableSpec& table) {
    return lend(ownKey + table.name.toString(), [&] { return rowsPlan(table); });
}

/// A statement that is on loan already is prepared once more.
Loan Connection::lend(const QString& key, const std::function<dialect::SelectPlan()>& plan) {
    const auto* known = m_statements.object(key);
    std::shared_ptr<PreparedStatement> statement = known != nullptr ? *known : nullptr;
    if (statement == nullptr || statement->isLent) {
        const dialect::SelectPlan its = statement != nullptr ? statement->plan : plan();
        statement = std::make_shared<PreparedStatement>(PreparedStatement{prepare(its.sql), its});
        if (known == nullptr)
            m_statements.insert(QString(key.constData(), key.size()), new std::shared_ptr(statement));
    }
    statement->isLent = true;
    return {statement.get(), [statement](PreparedStatement*) {
                statement->reset();
                statement->clear();
                statement->isLent = false;
            }};
}

bool Connection::passesCheck() {
    try {
        return text("PRAGMA quick_check(1)") == u"ok";
    } catch (const RuntimeError& error) {
        if (!isDamage(error)) throw;
        return false;
    }
}

/// quick_check reports a failed read like a damaged page. So after a failed check this reads all bytes, which
/// throws if the disk fails, and checks again.
bool Connection::isSound() {
    if (passesCheck()) return true;
    engine::RawContent(handle()).forEachChunk([](const QByteArray&) { return true; });
    return passesCheck();
}

qint64 Connection::number(const QByteArray& sql) {
    engine::Statement statement = prepare(sql);
    return statement.step() ? statement.integer(0) : 0;
}

QString Connection::text(const QByteArray& sql) {
    engine::Statement statement = prepare(sql);
    return statement.step() ? statement.text(0) : QString();
}

int Connection::changes() const { return engine::changedRows(m_database.get()); }

void Connection::remove(Cursor* cursor) { std::erase(m_cursors, cursor); }

QString passwordOf(const QString& connect) {
    const QString name = QStringLiteral("pwd=");
    for (const QString& part : connect.split(u';'))
        if (part.startsWith(name, Qt::CaseInsensitive)) return part.sliced(name.size());
    return {};
}

} // namespace cursors
