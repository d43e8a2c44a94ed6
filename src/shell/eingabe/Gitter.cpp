#include "Gitter.h"

#include "DataTable.h"
#include "EventGuard.h"

using namespace Qt::StringLiterals;

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

void GridVerweiseAbgleichen(DataTable* grid, int column, const QString& text, const QString& mode,
                            const QString& oldText) {
    if (mode == u"LOESCHEN"_s) {
        grid->removeRowsWithText(column, text);
    } else if (mode == u"UPDATE"_s) {
        for (int row = 0; grid->find(column, row, oldText) >= 0; ++row) grid->setCell(row, column, text);
    }
}

} // namespace modRun
