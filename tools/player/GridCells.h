#pragma once

#include "DataTable.h"

#include <QStringList>

/// Reads and finds the cells that a scenario names `Screen.grid`, `Screen.grid[row,column]` or, for the child
/// table of a row, `Screen.grid[row]` and `Screen.grid[parent/child,column]`.
namespace GridCells {

/// A row of the top level or of a child table. Row -1 is the space below the rows.
struct Row {
    TableHandle table;
    int row = -1;
};

/// Reads `3`, `1/2` (parent and child) or `-1`.
Row parseRow(const QString& text);
int parseNumber(const QString& text);

bool isCell(const QString& name);
QString cellText(const QString& name);

/// A line for each row: all its cells, hidden ones too, joined by |.
QStringList rows(const QString& tableName);
int count(const QString& tableName);

/// The place in the viewport where a user would press. Column -5 is the row header.
QPoint placeOf(DataTable* grid, const QString& name, Row row, int column);

} // namespace GridCells
