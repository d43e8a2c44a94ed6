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
        for (const char16_t* name : names) m_model.append(table, row(name));
    }

    static std::vector<Value> row(const char16_t* name) { return {0, name}; }

    void fillTwoLevels() {
        m_model.setChildColumns(columns(3), 1);
        fill(top, {u"eins", u"zwei", u"drei"});
        for (int owner : {0, 2}) {
            m_model.createChild(owner, Qt::white, Qt::gray);
            fill(owner, {u"a", u"b", u"c"});
        }
        m_model.publish();
    }

    std::string names(int table) const {
        QString all;
        const DataTableRows& rows = m_model.rows(table);
        for (int at = 0; at < rows.rowCount(); ++at) all += rows.text(at, 1) + u' ';
        return all.trimmed().toStdString();
    }

    std::string shownNames(const QModelIndex& parent = {}) const {
        const int column = parent.isValid() || !m_model.isTwoLevel() ? 1 : 0;
        QString all;
        for (int at = 0; at < m_model.rowCount(parent); ++at) {
            all += m_model.index(at, column, parent).data().toString() + u' ';
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
    EXPECT_EQ(shownNames(), "a b");
    m_model.insert(1, row(u"x"));
    EXPECT_EQ(shownNames(), "a x b c d");
    fill(top, {u"e", u"f"});
    m_model.insert(6, row(u"y"));
    m_model.remove(top, 0);
    fill(top, {u"g"});
    m_model.remove(top, 6);
    m_model.remove(top, 99);
    m_model.remove(top, -1);
    EXPECT_EQ(names(top), "x b c d e y g");
    EXPECT_EQ(shownNames(), "x b c d e y g");
}

TEST_F(DataTableModelTest, RowsOfOneTextGoTogetherAndTheOthersKeepTheirPlaceInTheView) {
    fill(top, {u"a", u"weg", u"b", u"weg"});
    m_model.publish();
    fill(top, {u"weg", u"c"});
    const QPersistentModelIndex kept = m_model.index(2, 1);
    const QPersistentModelIndex gone = m_model.index(3, 0);
    const QSignalSpy layouts(&m_model, &QAbstractItemModel::layoutChanged);
    m_model.removeWithText(1, u"weg"_s);
    EXPECT_EQ(layouts.size(), 1);
    EXPECT_EQ(names(top), "a b c");
    EXPECT_EQ(shownNames(), "a b c");
    EXPECT_EQ(kept.row(), 1);
    EXPECT_FALSE(gone.isValid());
    m_model.removeWithText(1, u"weg"_s);
    EXPECT_EQ(layouts.size(), 1);
}

TEST_F(DataTableModelTest, ChildTablesMoveWithTheirRow) {
    fillTwoLevels();
    const QPersistentModelIndex child = m_model.index(1, 1, m_model.index(2, 0));
    m_model.remove(top, 0);
    EXPECT_EQ(child.parent().row(), 1);
    EXPECT_EQ(names(1), "a b c");
    m_model.remove(1, 0);
    EXPECT_EQ(child.row(), 0);
    m_model.remove(top, 1);
    EXPECT_FALSE(child.isValid());
    EXPECT_EQ(shownNames(), "zwei");
}

} // namespace
