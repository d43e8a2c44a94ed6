#include "DataTableModel.h"
#include "ErrorOf.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int top = DataTableModel::top;

QVector<GridColumn> columns(int count) {
    QVector<GridColumn> made;
    for (int column = 0; column < count; ++column) made.push_back({QStringLiteral("Spalte %1").arg(column)});
    return made;
}

/// Qt's model tester checks what each change below reports to the views.
class DataTableModelTest : public testing::Test {
protected:
    DataTableModelTest()
        : m_tester(&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal) {
        m_model.setColumns(columns(2));
    }

    void fill(int table, std::initializer_list<const char16_t*> names) {
        int key = m_model.rows(table);
        for (const char16_t* name : names) m_model.append(table, {key++, name});
    }

    void fillTwoLevels() {
        m_model.setChildColumns(columns(3), 1);
        fill(top, {u"eins", u"zwei", u"drei"});
        for (int row : {0, 2}) {
            m_model.createChild(row);
            fill(row, {u"a", u"b", u"c"});
        }
        m_model.publish();
    }

    std::string names(int table) const {
        QString all;
        for (int row = 0; row < m_model.rows(table); ++row) all += m_model.text(table, row, 1) + u' ';
        return all.trimmed().toStdString();
    }

    std::string shownNames(const QModelIndex& parent = {}) const {
        const int column = parent.isValid() || !m_model.isTwoLevel() ? 1 : 0;
        QString all;
        for (int row = 0; row < m_model.rowCount(parent); ++row) {
            all += m_model.index(row, column, parent).data().toString() + u' ';
        }
        return all.trimmed().toStdString();
    }

    DataTableModel m_model;
    QAbstractItemModelTester m_tester;
};

TEST_F(DataTableModelTest, RowsAreInsertedAndRemovedOnBothSidesOfWhatTheViewKnows) {
    fill(top, {u"a", u"b"});
    m_model.publish();
    fill(top, {u"c", u"d"});
    m_model.insert(top, 1, {9, u"x"});
    m_model.insert(top, 4, {9, u"y"});
    m_model.insert(top, 99, {9, u"z"});
    EXPECT_EQ(names(top), "a x b c y d z");
    EXPECT_EQ(shownNames(), "a x b");
    m_model.remove(top, 0);
    m_model.remove(top, 3);
    m_model.remove(top, 99);
    m_model.remove(top, -1);
    EXPECT_EQ(names(top), "x b c d z");
    EXPECT_EQ(shownNames(), "x b");
    m_model.publish();
    EXPECT_EQ(shownNames(), "x b c d z");
}

TEST_F(DataTableModelTest, RowsOfOneTextGoTogetherAndTheOthersKeepTheirPlaceInTheView) {
    fill(top, {u"a", u"weg", u"b", u"weg"});
    m_model.publish();
    fill(top, {u"weg", u"c"});
    const QPersistentModelIndex kept = m_model.index(2, 1);
    const QPersistentModelIndex gone = m_model.index(3, 0);
    const QSignalSpy layouts(&m_model, &QAbstractItemModel::layoutChanged);
    EXPECT_EQ(m_model.removeWithText(top, 1, u"weg"_s), 3);
    EXPECT_EQ(layouts.size(), 1);
    EXPECT_EQ(names(top), "a b c");
    EXPECT_EQ(shownNames(), "a b");
    EXPECT_EQ(kept.row(), 1);
    EXPECT_FALSE(gone.isValid());
    EXPECT_EQ(m_model.removeWithText(top, 1, u"weg"_s), 0);
    EXPECT_EQ(layouts.size(), 1);
}

TEST_F(DataTableModelTest, ChildTablesMoveWithTheirRow) {
    fillTwoLevels();
    const QPersistentModelIndex child = m_model.index(1, 1, m_model.index(2, 0));
    m_model.insert(top, 1, {9, u"neu"});
    EXPECT_EQ(child.parent().row(), 3);
    EXPECT_TRUE(m_model.hasChild(3));
    m_model.remove(top, 0);
    EXPECT_EQ(child.parent().row(), 2);
    EXPECT_EQ(m_model.removeWithText(top, 1, u"neu"_s), 1);
    EXPECT_EQ(child.parent().row(), 1);
    EXPECT_EQ(names(1), "a b c");
    EXPECT_EQ(m_model.removeWithText(1, 1, u"a"_s), 1);
    EXPECT_EQ(child.row(), 0);
    EXPECT_EQ(m_model.removeWithText(top, 1, u"drei"_s), 1);
    EXPECT_FALSE(child.isValid());
    EXPECT_EQ(shownNames(), "zwei");
}

} // namespace
