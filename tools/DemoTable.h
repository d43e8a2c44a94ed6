#pragma once

#include "Recordset.h"

#include <initializer_list>
#include <utility>

class Database;

/// A table open for writing the demo club.
class DemoTable {
public:
    using Cell = std::pair<const char16_t*, Value>;

    DemoTable(Database& database, const QString& name);
    /// Closing commits nothing, since the cursor of describeClub() stays open longer.
    ~DemoTable() { m_rows.Close(); }
    DemoTable(const DemoTable&) = delete;
    DemoTable& operator=(const DemoTable&) = delete;

    void add(std::initializer_list<Cell> cells);
    /// Adds a row and returns the number that the store gave it.
    qint32 addNumbered(const QString& keyField, std::initializer_list<Cell> cells);

private:
    Recordset m_rows;
};
