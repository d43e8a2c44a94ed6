#pragma once

#include <QString>

class DataTable;

// Behaviour shared by all grids.

namespace modRun {

/// Sets the neutral colours of the selected row when a grid receives the focus, and clears its selection when
/// it loses the focus. Call for every grid. `counted` is another grid whose number of rows is cleared.
void connectGridFocus(DataTable* grid, const DataTable* counted = nullptr);
/// Clears a grid's selection also when it receives the focus. Call after connectGridFocus().
void leereAuswahlBeiFokus(DataTable* grid);
/// Updates a grid that shows a name of another table. The `mode` "LOESCHEN" removes every row with `text` in
/// the column. "UPDATE" replaces `oldText` by `text` in the column. Any other `mode` does nothing.
void GridVerweiseAbgleichen(DataTable* grid, int column, const QString& text, const QString& mode,
                            const QString& oldText);

} // namespace modRun
