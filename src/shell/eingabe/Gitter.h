#pragma once

class DataTable;

// Behaviour shared by all grids.

namespace modRun {

/// Sets the neutral colours of the selected row when a grid receives the focus, and clears its selection when
/// it loses the focus. Call for every grid. `counted` is another grid whose number of rows is cleared.
void connectGridFocus(DataTable* grid, const DataTable* counted = nullptr);
/// Clears a grid's selection also when it receives the focus. Call after connectGridFocus().
void leereAuswahlBeiFokus(DataTable* grid);

} // namespace modRun
