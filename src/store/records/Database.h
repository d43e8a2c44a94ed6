#pragma once

#include "Recordset.h"

namespace cursors {
class Connection;
}

/// An open database file. Copies share their state. Using an empty or closed one is error 91.
class Database {
public:
    Database() = default;
    explicit Database(std::shared_ptr<cursors::Connection> connection);

    /// Opens a table by its name (dbOpenTable) or the result of one SELECT (dbOpenDynaset). Errors: 3078 for
    /// an unknown table, 3061 for an unknown field, 3075 for a malformed SELECT.
    Recordset OpenRecordset(const QString& nameOrSelect, RecordsetType type);
    /// Closes the database and every cursor on it, which commits their writes.
    void Close();
    bool isOpen() const;
    /// Reads the whole file. False only if a page is damaged; CompactDatabase can then save the rest. True if
    /// the file can't be read now because another process uses it or the disk fails.
    bool isSound() const;

private:
    friend class Transaction;
    std::shared_ptr<cursors::Connection> m_connection;
};
