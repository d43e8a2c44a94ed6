#include "Gitter.h"

#include "DataTable.h"
#include "EventGuard.h"

namespace modRun {

namespace {
void SetzeGridFarben(SelectionStyle& style) { style = {Qt::white, Qt::black, 1}; }
} // namespace

void connectGridFocus(DataTable* grid, const DataTable* counted) {
    QObject::connect(grid, &DataTable::OnGridGotFocus, grid,
                     [grid] { SetzeGridFarben(grid->selectionStyle()); });
    QObject::connect(grid, &DataTable::OnGridLostFocus, grid, [grid, counted = counted ? counted : grid] {
        runEvent([=] { grid->deselectRows(counted->rowCount()); });
    });
}

void leereAuswahlBeiFokus(DataTable* grid) {
    QObject::connect(grid, &DataTable::OnGridGotFocus, grid,
                     [grid] { runEvent([grid] { grid->deselectRows(grid->rowCount()); }); });
}

} // namespace modRun
