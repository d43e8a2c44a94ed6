#include "DataTable.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <gtest/gtest.h>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int rows = 20'000; // watched by the sanitizer, a million would take half a minute
#else
constexpr int rows = 1'000'000;
#endif
constexpr double bytesAllowed = 250;

void fill(DataTable& grid) {
    QVector<GridColumn> columns(7);
    grid.setColumns(columns);
    for (int row = 0; row < rows; ++row) {
        grid.appendRow({row, QStringLiteral("Fisch %1").arg(row % 40),
                        QStringLiteral("Gewässer %1").arg(row % 15), QStringLiteral("Monat %1").arg(row % 12),
                        row % 5, row / 2.0, QStringLiteral("Name %1").arg(row % 200)});
    }
}

double bytesOnHeap() {
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
    const auto heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd);
#else
    return 0;
#endif
}

TEST(DataTableSizeTest, AMillionRowsStaySmallWithAllThatTheViewKeepsOfThem) {
    DataTable grid(QStringLiteral("tblProbe"));
    grid.resize(600, 300);
    grid.show();
    const double before = bytesOnHeap();
    fill(grid);
    const double ofRows = static_cast<double>(grid.memoryInUse());
    grid.publish();
    EXPECT_FALSE(grid.revealCell({}, rows - 1, 0).isEmpty());
    EXPECT_LT((bytesOnHeap() - before) / rows, bytesAllowed);
    EXPECT_GT(ofRows / rows, 7 * sizeof(quint64));
    EXPECT_LT(ofRows / rows, 100);
    grid.clearRows();
    EXPECT_LT(static_cast<double>(grid.memoryInUse()), ofRows / 100);
}

/// The bound is some twenty times what the slowest of these takes; telling the view of rows one by one, or
/// moving all that stand behind each removed row, takes far longer.
TEST(DataTableSizeTest, OneActionOnAMillionRowsIsOneMessageToTheView) {
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
