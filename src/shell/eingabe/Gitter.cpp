#include "Gitter.h"

#include "DataTable.h"
#include "EventGuard.h"

#include <QColor>

using namespace Qt::StringLiterals;

namespace modRun {

void SetzeGridFarben(SelectionStyle& style) {
    style.back = QColor(255, 255, 255);
    style.fore = QColor(0, 0, 0);
    style.style = 1;
}

void connectGridFocus(DataTable* grid) {
    QObject::connect(grid, &DataTable::OnGridGotFocus, grid,
                     [grid] { runEvent([grid] { SetzeGridFarben(grid->selectionStyle()); }); });
    QObject::connect(grid, &DataTable::OnGridLostFocus, grid,
                     [grid] { runEvent([grid] { grid->selectRows(0, grid->rowCount(), false); }); });
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
