#pragma once

#include "DatabaseHandle.h"
#include "Lexer.h"
#include "StatementCache.h"
#include "WriteTransaction.h"

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

struct sqlite3;

namespace cursors {

class Cursor;

/// An open database file.
class Connection {
public:
    using Access = engine::Access;

    /// Opens a file, which this alone never changes, but for taking back what a killed process left
    /// half-written, and for a write-ahead log of another tool, which goes into the file. If it fails, the
    /// file and its journal are as they were, unless the password was right and the file is damaged. Create
    /// is for a file that is to be made and does not check what it holds. Errors as for
    /// Workspace::OpenDatabase.
    Connection(const QString& path, const QString& password, Access access);
    ~Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Ends every cursor, which commits what they have written, and lets go of the file. The first failure is
    /// thrown when all is done.
    void close();
    bool isOpen() const { return m_database != nullptr; }

    /// A statement of the dialect, ready to be stepped.
    StatementCache::Loan select(QStringView source);
    /// A statement of the store's own.
    StatementCache::Loan statement(const QByteArray& sql) { return m_cache->take(sql); }
    /// As above, but not kept: for what runs once.
    engine::Statement prepare(const QByteArray& sql) { return engine::Statement(m_database.get(), sql); }
    void execute(const QByteArray& sql) { prepare(sql).run(); }
    WriteTransaction& transaction() { return *m_transaction; }
    sqlite3* handle() const { return m_database.get(); }
    /// How many rows the last write touched.
    int changes() const;
    /// Reads the whole file. False if a page is damaged. Errors as for a failed read: 3043 if the disk does
    /// not give a page, 3260 if another process keeps this one from reading.
    bool isSound();

    void add(Cursor* cursor) { m_cursors.push_back(cursor); }
    void remove(Cursor* cursor);

private:
    void openExisting(const QString& path, const QString& password, Access access);
    void orDamaged(const QString& path, const QString& password, const std::function<void()>& open);
    void openFile(const QString& path, const QString& password, Access access);
    void readFirstPage(const QString& path);
    void requireTables(const QString& path);
    void leaveWriteAheadMode(const QString& path);
    void cascadeDeletions();
    bool passesCheck();

    engine::DatabaseHandle m_database;
    std::optional<StatementCache> m_cache;
    std::optional<WriteTransaction> m_transaction;
    std::vector<Cursor*> m_cursors;
    dialect::LexedStatement m_lexed; ///< kept for its buffers
};

/// The password in a connect text such as ";pwd=...".
QString passwordOf(const QString& connect);

} // namespace cursors
