#include "DataTable.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace {

constexpr int rows = 300'000;
void fill(DataTable& grid) {
    QVector<GridColumn> columns(7);
    grid.setColumns(columns);
    for (int row = 0; row < rows; ++row) {
        grid.appendRow({row, QStringLiteral("Fisch %1").arg(row % 40),
                        QStringLiteral("Gewässer %1").arg(row % 15), QStringLiteral("Monat %1").arg(row % 12),
                        row % 5, row / 2.0, QStringLiteral("Name %1").arg(row % 200)});
    }
}

/// The bound is some twenty times what the slowest of these takes; telling the view of rows one by one, or
/// moving all that stand behind each removed row, takes far longer.
TEST(DataTableSizeTest, OneActionOnManyRowsIsOneMessageToTheView) {
    DataTable grid(QStringLiteral("tblProbe"));
    grid.resize(600, 300);
    fill(grid);
    grid.show();
    const std::vector<std::function<void()>> actions{
        [&] { grid.appendRow({1}); },
        [&] { grid.insertRow(0, {1}); },
        [&] { grid.removeRow(0); },
        [&] { grid.selectRows(0, grid.rowCount(), true); },
        [&] { grid.selectRows(0, grid.rowCount(), false); },
        [&] { EXPECT_EQ(grid.removeRowsWithText(6, QStringLiteral("Name 77")), rows / 200); },
        [&] { EXPECT_EQ(grid.removeRowsWithText(4, QStringLiteral("3")), rows / 5); },
        [&] { grid.clearRows(); },
    };
    for (std::size_t which = 0; which < actions.size(); ++which) {
        QElapsedTimer clock;
        clock.start();
        actions[which]();
        QCoreApplication::processEvents();
        EXPECT_LT(clock.elapsed(), 1000) << which;
    }
}

} // namespace
