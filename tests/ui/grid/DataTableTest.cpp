#include "DataTable.h"
#include "RuntimeError.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class DataTableTest : public testing::Test {
protected:
    DataTableTest()
        : m_grid(QStringLiteral("tblProbe")) {
        m_grid.setColumns({{u"Nr"_s, 60, true}, {u"Name"_s, 120}, {u"verborgen"_s, 0}, {u"Ort"_s, 80}});
        m_grid.resize(600, 300);
    }

    void fill(int rows) {
        for (int row = 0; row < rows; ++row) m_grid.appendRow({row, u"Name", row % 2, u"Ort"});
    }

    int shownRows() const { return m_grid.model()->rowCount(); }
    int selectedRows() const { return static_cast<int>(m_grid.selectionModel()->selectedRows().size()); }

    DataTable m_grid;
};

TEST_F(DataTableTest, AVisibleGridShowsAppendedRowsInTheNextTurnAndAHiddenOneWhenItIsShown) {
    fill(3);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_grid.rowCount(), 3);
    EXPECT_EQ(shownRows(), 0);
    m_grid.show();
    EXPECT_EQ(shownRows(), 3);
    fill(2);
    EXPECT_EQ(shownRows(), 3);
    QCoreApplication::processEvents();
    EXPECT_EQ(shownRows(), 5);
    const QSignalSpy changed(m_grid.model(), &QAbstractItemModel::dataChanged);
    m_grid.setCell(0, 1, u"neu");
    EXPECT_EQ(changed.size(), 1);
}

TEST_F(DataTableTest, ColumnsKeepTheirNumbersHideAtWidthZeroAndFillTheRoom) {
    fill(1);
    m_grid.show();
    EXPECT_EQ(m_grid.visibleHeads(), (QVector<QString>{u"Nr"_s, u"Name"_s, u"Ort"_s}));
    EXPECT_EQ(m_grid.columnWidth(0), 60);
    EXPECT_EQ(m_grid.columnViewportPosition(3) + m_grid.columnWidth(3), m_grid.viewport()->width());
    m_grid.setColumnWidth(1, 5);
    EXPECT_EQ(m_grid.columnWidth(1), 24);
    m_grid.setColumnShown(3, false);
    EXPECT_EQ(m_grid.columnViewportPosition(1) + m_grid.columnWidth(1), m_grid.viewport()->width());
    m_grid.setColumns({{u"Anders"_s, 70}, {u"Zwei"_s, 70}});
    EXPECT_EQ(m_grid.visibleHeads(), (QVector<QString>{u"Anders"_s, u"Zwei"_s}));
    EXPECT_EQ(m_grid.header()->visualIndex(0), 1);
    EXPECT_EQ(m_grid.columnViewportPosition(0) + m_grid.columnWidth(0), m_grid.columnViewportPosition(1));
}

TEST_F(DataTableTest, AClickOnAHeadMovesTheRowsAndTheCurrentOneStaysTheSame) {
    m_grid.setColumns({{u"Nr"_s, 60, true}, {u"Name"_s, 120}, {u"Tag"_s, 80}, {u"Std."_s, 80, true}});
    m_grid.setSortable();
    m_grid.appendRow({10, u"Öhm", Date{40000}, u"9,50"});
    m_grid.appendRow({9, u"Zander", QString(), u"10,25"});
    m_grid.appendRow({11, u"ohm", Date{39000}, u"-1,00"});
    m_grid.show();
    m_grid.setCurrentIndex(m_grid.model()->index(1, 0));
    const auto order = [this](int column) {
        const QPoint head(m_grid.header()->sectionViewportPosition(column) + 30, 8);
        QTest::mouseClick(m_grid.header()->viewport(), Qt::LeftButton, {}, head);
        QStringList numbers;
        for (int row = 0; row < m_grid.rowCount(); ++row) numbers.append(m_grid.cellText(row, 0));
        return numbers.join(u' ');
    };
    EXPECT_EQ(order(0), u"9 10 11");
    EXPECT_EQ(order(0), u"11 10 9");
    EXPECT_EQ(m_grid.currentIndex().row(), 2);
    EXPECT_EQ(order(1), u"11 10 9");
    EXPECT_EQ(order(2), u"9 11 10");
    EXPECT_EQ(order(3), u"11 10 9");
    m_grid.clearRows();
    fill(2);
    EXPECT_EQ(order(0), u"0 1") << "the first click after new rows";
}

TEST_F(DataTableTest, NumbersStandAtTheRight) {
    fill(1);
    m_grid.show();
    const QImage cell = m_grid.viewport()->grab(m_grid.revealCell({}, 0, 0).adjusted(2, 2, -2, -2)).toImage();
    const auto isEmpty = [&](int from, int to) {
        for (int x = from; x < to; ++x)
            for (int y = 0; y < cell.height(); ++y)
                if (cell.pixelColor(x, y).lightness() < 128) return false;
        return true;
    };
    EXPECT_TRUE(isEmpty(0, cell.width() / 2));
    EXPECT_FALSE(isEmpty(cell.width() / 2, cell.width()));
}

TEST_F(DataTableTest, SelectedRowsTakeTheColoursThatTheProgramSets) {
    fill(3);
    m_grid.show();
    const QPoint place = m_grid.revealCell({}, 1, 3).center();
    const auto backAt = [&] { return m_grid.viewport()->grab().toImage().pixelColor(place); };
    const QColor plain = backAt();
    m_grid.setCurrentIndex(m_grid.model()->index(1, 0));
    EXPECT_EQ(backAt(), m_grid.palette().color(QPalette::Inactive, QPalette::Highlight));
    m_grid.selectionStyle().back = QColor(1, 2, 3);
    EXPECT_EQ(backAt(), QColor(1, 2, 3));
    m_grid.deselectRows(1);
    EXPECT_NE(backAt(), plain);
    m_grid.deselectRows(2);
    EXPECT_EQ(backAt(), plain);
}

/// The overview of contacts in small: categories with children of three columns.
class TwoLevelDataTableTest : public testing::Test {
protected:
    TwoLevelDataTableTest()
        : m_grid(QStringLiteral("tblProbe")) {
        m_grid.setColumns({{QString(), 40}, {QString(), 40}, {QString(), 300}});
        m_grid.setChildColumns({{u"Nr"_s, 60}, {u"Name"_s, 120}, {u"Ort"_s, 80}}, 2);
        m_grid.resize(600, 400);
        for (int row = 0; row < 3; ++row) m_grid.appendRow({row + 1, u"+", u"Kategorie"});
    }

    void fillChild(int row, int count) {
        m_grid.createChild(row, QColor(172, 199, 247), QColor(100, 199, 247));
        const TableHandle parent = m_grid.enter({row});
        for (int child = 0; child < count; ++child) m_grid.appendRow({child, u"Name", u"Ort"});
        m_grid.enter(parent);
    }

    DataTable m_grid;
};

TEST_F(TwoLevelDataTableTest, ChildRowsTakeTheirColoursByTurns) {
    fillChild(0, 3);
    m_grid.show();
    m_grid.revealCell({0}, 0, 0);
    const QImage face = m_grid.viewport()->grab().toImage();
    const auto backOf = [&](int row) {
        return face.pixelColor(m_grid.revealCell({0}, row, 2).adjusted(0, 0, -4, -4).bottomRight());
    };
    EXPECT_EQ(backOf(0), QColor(172, 199, 247));
    EXPECT_EQ(backOf(2), backOf(0));
    EXPECT_NE(backOf(1), backOf(0));
}

} // namespace
