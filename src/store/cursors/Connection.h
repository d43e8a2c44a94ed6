#pragma once

#include "DatabaseHandle.h"
#include "SelectRewriter.h"
#include "Statement.h"
#include "WriteTransaction.h"

#include <QCache>
#include <functional>

namespace cursors {

class Cursor;

/// A statement that is kept for the next time.
struct PreparedStatement : engine::Statement {
    dialect::SelectPlan plan;
    bool isLent = false;
};

/// A statement on loan. Its end resets the statement and gives it back.
using Loan = std::shared_ptr<PreparedStatement>;

/// An open database file.
class Connection {
public:
    using Access = engine::Access;

    /// Opens a file. Opening changes it only in two cases: half-written changes of a killed process are taken
    /// back, and the write-ahead log of another tool is merged into the file. After a failure the file and
    /// its journal are as before, unless the password was right and the file is damaged. Create is for a new
    /// file and checks no content. Errors as for Workspace::OpenDatabase.
    Connection(const QString& path, const QString& password, Access access);
    ~Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Closes every cursor, which commits its changes, and then the file. Throws the first failure at the
    /// end.
    void close();
    bool isOpen() const { return m_database != nullptr; }

    /// A SELECT of the dialect with its literals bound. Step it next.
    Loan select(QStringView source);
    /// A statement in SQLite's own SQL.
    Loan statement(const QByteArray& sql);
    /// All rows of a table from the number ?1 on.
    Loan rowsOf(const TableSpec& table);
    /// As above for a statement that runs once and is not kept.
    engine::Statement prepare(const QByteArray& sql) { return engine::Statement(m_database.get(), sql); }
    void execute(const QByteArray& sql) { prepare(sql).run(); }
    /// The first value that a statement finds, 0 or empty if there is none.
    qint64 number(const QByteArray& sql);
    QString text(const QByteArray& sql);
    WriteTransaction& transaction() { return *m_transaction; }
    sqlite3* handle() const { return m_database.get(); }
    /// The number of rows that the last write changed.
    int changes() const;
    /// Reads the whole file. False if a page is damaged. Error 3043 if the disk can't be read, 3260 if
    /// another process locks the file.
    bool isSound();

    void add(Cursor* cursor) { m_cursors.push_back(cursor); }
    void remove(Cursor* cursor);

private:
    void openExisting(const QString& path, const QString& password, Access access);
    void openFile(const QString& path, const QString& password, Access access);
    void requireTables(const QString& path);
    void leaveWriteAheadMode(const QString& path);
    void cascadeDeletions();
    bool passesCheck();
    Loan lend(const QString& key, const std::function<dialect::SelectPlan()>& plan);

    engine::DatabaseHandle m_database;
    /// The least recently used ones are dropped first.
    QCache<QString, std::shared_ptr<PreparedStatement>> m_statements{128};
    std::optional<WriteTransaction> m_transaction;
    std::vector<Cursor*> m_cursors;
    dialect::LexedStatement m_lexed; ///< kept for its buffers
};

/// The password in a connect text such as ";pwd=...".
QString passwordOf(const QString& connect);

} // namespace cursors
