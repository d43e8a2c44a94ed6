#include "Connection.h"

#include "Cursor.h"
#include "FileShape.h"
#include "SelectRewriter.h"
#include "SqlFunctions.h"
#include "Sqlite.h"
#include "SqliteError.h"

#include <QtGlobal>
#include <utility>

namespace {

constexpr int busyMilliseconds = 1500;

int openFlags(Connection::Access access) {
    // The program has one thread; without locks of its own the library hands out columns much faster.
    constexpr int common = SQLITE_OPEN_NOMUTEX;
    if (access == Connection::Access::ReadOnly) return common | SQLITE_OPEN_READONLY;
    const int writing = common | SQLITE_OPEN_READWRITE;
    return access == Connection::Access::Create ? writing | SQLITE_OPEN_CREATE : writing;
}

/// The same failures have other numbers when they keep a file from being opened.
RuntimeError openError(const RuntimeError& error, const QString& path) {
    switch (error.number) {
    case 3260:
        return runtimeError(3045, path);
    case 3027:
        return runtimeError(3051, path);
    case 3051:
        return runtimeError(3051, path);
    case 3343:
        return runtimeError(3343, path);
    default:
        return error;
    }
}

} // namespace

void Connection::Closer::operator()(sqlite3* database) const { sqlite3_close_v2(database); }

Connection::Connection(const QString& path, const QString& password, Access access) {
    const bool exists = access != Access::Create;
    if (exists) requireReadableFile(path);
    const bool interrupted = exists && hasJournal(path);
    if (exists && !interrupted) requirePageShape(path);
    openFile(path, access);
    m_cache.emplace(m_database.get());
    m_transaction.emplace(m_database.get());
    try {
        unlock(password);
        if (!exists) return;
        readFirstPage(path);
        if (interrupted) requirePageShape(path);
        requireTables(path);
    } catch (const RuntimeError& error) {
        throw openError(error, path);
    }
}

Connection::~Connection() {
    if (m_keptFailure) qWarning("%s", qUtf8Printable(m_keptFailure->description));
}

void Connection::openFile(const QString& path, Access access) {
    sqlite3* database = nullptr;
    const int code = sqlite3_open_v2(path.toUtf8().constData(), &database, openFlags(access), nullptr);
    m_database.reset(database);
    if (database == nullptr) throw runtimeError(7);
    if (code != SQLITE_OK) throw openError(sqliteError(database), path);
    sqlite3_extended_result_codes(database, 1);
    sqlite3_busy_timeout(database, busyMilliseconds);
}

void Connection::unlock(const QString& password) {
    // The library takes no empty key.
    if (password.isEmpty()) throw runtimeError(3031);
    const QByteArray key = password.toUtf8();
    const int code = sqlite3_key(m_database.get(), key.constData(), static_cast<int>(key.size()));
    if (code != SQLITE_OK) throw sqliteError(m_database.get());
    // A library without encryption would take any key, and write in the clear.
    if (!prepare("PRAGMA cipher_version").step())
        throw RuntimeError{3000, QStringLiteral("Die Datenbankbibliothek kann nicht verschlüsseln.")};
    // Newer libraries have another format of their own; older ones pass over this.
    execute("PRAGMA cipher_compatibility = 3");
    execute("PRAGMA foreign_keys = ON");
    execute("PRAGMA synchronous = FULL");
    execute("PRAGMA cache_size = -32768");
    registerSqlFunctions(m_database.get());
}

/// Takes back what a killed process left half-written, and shows whether the password is right.
void Connection::readFirstPage(const QString& path) {
    prepare("SELECT COUNT(*) FROM sqlite_master").step();
    Statement pages = prepare("PRAGMA page_count");
    if (pages.step()) requirePages(path, pages.integer(0));
}

void Connection::requireTables(const QString& path) {
    Statement named = prepare("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?1");
    for (const TableSpec& table : schemaTables()) {
        named.bind(1, table.name.toString());
        if (!named.step()) throw runtimeError(3343, path);
        named.reset();
    }
}

void Connection::close() {
    std::optional<RuntimeError> failure = std::exchange(m_keptFailure, std::nullopt);
    while (!m_cursors.empty()) {
        try {
            m_cursors.back()->close();
        } catch (const RuntimeError& error) {
            if (!failure) failure = error;
        }
    }
    m_cache->clear();
    m_database.reset();
    if (failure) throw *failure;
}

StatementCache::Loan Connection::select(QStringView source) {
    lexStatement(source, m_lexed);
    StatementCache::Loan loan = m_cache->take(m_lexed.key);
    if (!loan) loan = m_cache->add(m_lexed.key, rewriteSelect(source, m_lexed));
    int position = 1;
    for (const Value& literal : m_lexed.literals) loan->bind(position++, literal);
    return loan;
}

int Connection::changes() const { return sqlite3_changes(m_database.get()); }

void Connection::keepFailure(const RuntimeError& failure) {
    if (!m_keptFailure) m_keptFailure = failure;
}

void Connection::tellKeptFailure() {
    if (const auto failure = std::exchange(m_keptFailure, std::nullopt)) throw *failure;
}

void Connection::remove(Cursor* cursor) { std::erase(m_cursors, cursor); }

QString passwordOf(const QString& connect) {
    const QString name = QStringLiteral("pwd=");
    const QStringList parts = connect.split(u';');
    for (const QString& part : parts)
        if (part.startsWith(name, Qt::CaseInsensitive)) return part.sliced(name.size());
    return {};
}
