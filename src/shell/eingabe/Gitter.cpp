#include "Gitter.h"

#include "DataTable.h"
#include "EventGuard.h"

namespace modRun {

void connectGridFocus(DataTable* grid, const DataTable* counted) {
    QObject::connect(grid, &DataTable::OnGridGotFocus, grid, [grid] {
        grid->selectionStyle() = {Qt::white, Qt::black, 1};
    });
    QObject::connect(grid, &DataTable::OnGridLostFocus, grid, [grid, counted = counted ? counted : grid] {
        runEvent([=] { grid->selectRows(0, counted->rowCount(), false); });
    });
}

void leereAuswahlBeiFokus(DataTable* grid) {
    QObject::connect(grid, &DataTable::OnGridGotFocus, grid,
                     [grid] { runEvent([grid] { grid->selectRows(0, grid->rowCount(), false); }); });
}

} // namespace modRun
