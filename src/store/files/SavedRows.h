#pragma once

#include "Connection.h"

#include <map>

/// The tables of the new file during a salvage. Rows come from PageReader.
class SavedRows {
public:
    explicit SavedRows(cursors::Connection& target)
        : m_target(target) {}

    /// Adds a row. Returns false if the table has a row of that number.
    bool add(const TableSpec& table, const engine::Statement& row);
    /// Whether the table has a row of the same number and fields.
    bool holds(const TableSpec& table, const engine::Statement& row);
    bool hasNumber(const TableSpec& table, const engine::Statement& row);
    bool isEmpty() const { return m_count == 0; }

private:
    struct Statements {
        engine::Statement insert, same, number;
    };
    Statements& of(const TableSpec& table);

    cursors::Connection& m_target;
    std::map<const TableSpec*, Statements> m_statements;
    qint64 m_count = 0;
};
