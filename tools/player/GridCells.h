#pragma once

#include "DataTable.h"

#include <QStringList>

/// Reads and presses what a scenario names `Screen.grid`, `Screen.grid[row,column]` or, for the child table
/// of a row, `Screen.grid[row]` and `Screen.grid[parent/child,column]`.
namespace GridCells {

/// A row of the top level or of a child table; row -1 is beyond the rows.
struct Row {
    TableHandle table;
    int row = -1;
};

/// From `3`, `1/2` or `-1`.
Row parseRow(const QString& text);
int parseNumber(const QString& text);

bool isCell(const QString& name);
QString cellText(const QString& name);

/// A line a row, all its cells joined by |.
QStringList rows(const QString& tableName);
int count(const QString& tableName);

/// Where a user would press for the cell; column -5 is the row header.
QPoint placeOf(DataTable* grid, const QString& name, Row row, int column);

} // namespace GridCells
