#pragma once

#include "Recordset.h"

#include <initializer_list>
#include <utility>

class Database;

/// A table while the demo club is written into it.
class DemoTable {
public:
    using Cell = std::pair<const char16_t*, Value>;

    DemoTable(Database& database, const QString& name);
    /// Commits nothing: the cursor that describes the club stays open longer.
    ~DemoTable() { m_rows.Close(); }
    DemoTable(const DemoTable&) = delete;
    DemoTable& operator=(const DemoTable&) = delete;

    void add(std::initializer_list<Cell> cells);
    /// Adds a row and reads back the number that the store gave it.
    qint32 addNumbered(const QString& keyField, std::initializer_list<Cell> cells);

private:
    Recordset m_rows;
};
