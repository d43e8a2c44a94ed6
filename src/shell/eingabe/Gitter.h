#pragma once

#include <QString>

class DataTable;
struct SelectionStyle;

// Routines for every grid of the program.

namespace modRun {

/// The neutral colours in which the selected row of a grid shows while the grid has the focus.
void SetzeGridFarben(SelectionStyle& style);
/// Connects the routines that every grid runs when it receives and when it loses the focus.
void connectGridFocus(DataTable* grid);
/// For the grids that lose their selection also when they receive the focus.
void leereAuswahlBeiFokus(DataTable* grid);
/// Keeps a grid in step after a base record has changed. "LOESCHEN" removes every row whose cell in the
/// column is `text`; "UPDATE" writes `text` into every cell of the column that is `oldText`; any other word
/// does nothing.
void GridVerweiseAbgleichen(DataTable* grid, int column, const QString& text, const QString& mode,
                            const QString& oldText);

} // namespace modRun
