#pragma once

#include "Recordset.h"

#include <memory>

namespace cursors {
class Connection;
}

/// An open database file. A value with shared state; using an empty or closed one is error 91.
class Database {
public:
    Database() = default;
    explicit Database(std::shared_ptr<cursors::Connection> connection);

    /// Opens a table (dbOpenTable, by its name; 3078 if there is none) or the result of one SELECT
    /// (dbOpenDynaset; 3075 for what is no well-formed SELECT, 3061 for an unknown field, 3078 for an unknown
    /// table).
    Recordset OpenRecordset(const QString& nameOrSelect, RecordsetType type);
    /// Ends the database and every cursor on it. What finished routines wrote is in the file.
    void Close();
    bool isOpen() const;
    /// Reads the whole file. False only if a page is damaged, in which case CompactDatabase can save what is
    /// left. True for a file that can't be read for now: another process uses it, or the disk fails.
    bool isSound() const;

private:
    std::shared_ptr<cursors::Connection> m_connection;
};
