#pragma once

#include "CopyBuffer.h"
#include "StatementCache.h"

namespace cursors {

class Connection;

/// Writes the rows of one table for one cursor.
class RowWriter {
public:
    RowWriter(Connection& connection, const TableSpec& table)
        : m_connection(connection)
        , m_table(table) {}

    /// Error 3022 for a key that exists, 3058 for a Null key.
    void insert(const CopyBuffer& buffer);
    /// Writes the fields that are set. Error 3167 if the row is gone.
    void update(qint64 row, const CopyBuffer& buffer);
    void remove(qint64 row);

private:
    QByteArray insertSql() const;
    QByteArray updateSql(const std::vector<int>& fields) const;
    void requireOneRow() const;

    Connection& m_connection;
    const TableSpec& m_table;
    StatementCache::Loan m_insert;
    StatementCache::Loan m_update;
    std::vector<int> m_updated; ///< the fields that m_update writes
    StatementCache::Loan m_remove;
};

} // namespace cursors
