#include "DataTable.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A grid beside a field. Records the events of the grid as "down 1 2".
class DataTableEventsTest : public testing::Test {
protected:
    DataTableEventsTest()
        : m_grid(new DataTable(QStringLiteral("tblProbe"), &m_screen))
        , m_field(new QLineEdit(&m_screen)) {
        auto* layout = new QVBoxLayout(&m_screen);
        layout->addWidget(m_field);
        layout->addWidget(m_grid);
        m_screen.resize(500, 400);
        QObject::connect(m_grid, &DataTable::OnGridCellDown, m_grid,
                         [this](int row, int column) { hear(u"down %1 %2"_s.arg(row).arg(column)); });
        QObject::connect(m_grid, &DataTable::OnGridCellOpen, m_grid,
                         [this](int row, int column) { hear(u"open %1 %2"_s.arg(row).arg(column)); });
        QObject::connect(m_grid, &DataTable::OnGridCellMenu, m_grid, [this] { hear(u"menu"_s); });
        QObject::connect(m_grid, &DataTable::OnGridGotFocus, m_grid, [this] { hear(u"got"_s); });
        QObject::connect(m_grid, &DataTable::OnGridLostFocus, m_grid, [this] { hear(u"lost"_s); });
    }

    void showFlat() {
        m_grid->setColumns({{u"Nr"_s, 60}, {u"Name"_s, 100}, {u"Ort"_s, 100}});
        for (int row = 0; row < 4; ++row) m_grid->appendRow({row, u"Name", u"Ort"});
        show();
    }

    void showTwoLevels() {
        m_grid->setColumns({{QString()}, {QString()}, {QString()}});
        m_grid->setChildColumns({{u"Nr"_s, 60}, {u"Name"_s, 100}}, 2);
        for (int row = 0; row < 3; ++row) m_grid->appendRow({row, u"+", u"Kategorie"});
        m_grid->createChild(0, Qt::white, Qt::gray);
        show();
    }

    void show() {
        m_screen.show();
        m_screen.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_screen));
        m_grid->setFocus();
        m_heard.clear();
    }

    void press(int row, int column, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(m_grid->viewport(), button, {}, m_grid->revealCell({}, row, column).center());
    }

    /// As the window system does: a double click replaces the second press.
    void doubleClick(int row, int column) {
        press(row, column);
        QTest::mouseDClick(m_grid->viewport(), Qt::LeftButton, {},
                           m_grid->revealCell({}, row, column).center());
    }

    void key(Qt::Key pressed) { QTest::keyClick(m_grid, pressed); }
    void hear(const QString& event) { m_heard.push_back(event); }
    bool isOpen(int row) const { return m_grid->isExpanded(m_grid->model()->index(row, 0)); }

    QString heard() {
        const QString all = m_heard.join(u", "_s);
        m_heard.clear();
        return all;
    }

    QStringList m_heard; // outlives the screen, whose end may still record
    QWidget m_screen;
    DataTable* m_grid;
    QLineEdit* m_field;
};

TEST_F(DataTableEventsTest, APressTellsRowAndColumnAndMakesTheRowCurrent) {
    showFlat();
    press(2, 1);
    EXPECT_EQ(heard(), "down 2 1");
    EXPECT_EQ(m_grid->currentIndex().row(), 2);
    EXPECT_TRUE(m_grid->selectionModel()->isRowSelected(2));
    press(1, DataTable::rowHeaderColumn);
    EXPECT_EQ(heard(), "down 1 -5");
    EXPECT_FALSE(m_grid->selectionModel()->isRowSelected(2));
    press(-1, 0);
    EXPECT_EQ(heard(), "down -1 -1");
    press(3, 2, Qt::RightButton);
    EXPECT_EQ(heard(), "down 3 2");
    press(0, 0, Qt::MiddleButton);
    EXPECT_EQ(heard(), "");
}

TEST_F(DataTableEventsTest, ADoubleClickAndEnterOpenTheRow) {
    showFlat();
    doubleClick(1, 2);
    EXPECT_EQ(heard(), "down 1 2, open 1 2");
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(heard(), "open 2 2");
    press(3, DataTable::rowHeaderColumn);
    key(Qt::Key_Enter);
    EXPECT_EQ(heard(), "down 3 -5, open 3 0");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(m_grid, &held);
    EXPECT_EQ(heard(), "") << "the search that filled the grid was started by the same Enter";
    doubleClick(-1, 0);
    EXPECT_EQ(heard(), "down -1 -1");
}

TEST_F(DataTableEventsTest, ATextTooWideForItsCellShowsInATipAsItIs) {
    showFlat();
    m_grid->setCell(1, 1, QString(u"<img src=\"/etc/motd\"> and a long name"_s));
    const QPoint place = m_grid->revealCell({}, 1, 1).center();
    QHelpEvent help(QEvent::ToolTip, place, m_grid->viewport()->mapToGlobal(place));
    QApplication::sendEvent(m_grid->viewport(), &help);
    QTextDocument tip;
    tip.setHtml(QToolTip::text());
    EXPECT_EQ(tip.toPlainText(), m_grid->cellText(1, 1));
}

TEST_F(DataTableEventsTest, TheMenuComesAfterThePressAlsoByKey) {
    showFlat();
    press(1, 1);
    heard();
    const QPoint place = m_grid->revealCell({}, 2, 1).center();
    QTest::mousePress(m_grid->viewport(), Qt::RightButton, {}, place);
    QContextMenuEvent byMouse(QContextMenuEvent::Mouse, place, m_grid->viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(m_grid->viewport(), &byMouse);
    EXPECT_EQ(heard(), "down 2 1, menu");
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(m_grid, &byKey);
    EXPECT_EQ(heard(), "down 2 1, menu");
    QTest::mouseRelease(m_grid->viewport(), Qt::RightButton, {}, place);
}

TEST_F(DataTableEventsTest, LettersFindTheNextRowAndKeysCopyItAndOpenItsMenu) {
    showFlat();
    const QStringList names = {u"Aal"_s, u"Barsch"_s, u"Brasse"_s, u"Ärmel"_s};
    for (int row = 0; row < names.size(); ++row) m_grid->setCell(row, 1, names[row]);
    for (const int row : {1, 2, 1}) {
        key(Qt::Key_B);
        EXPECT_EQ(m_grid->currentIndex().row(), row);
    }
    key(Qt::Key_R);
    EXPECT_EQ(m_grid->currentIndex().row(), 2);
    QTest::keyClick(m_grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), u"2\tBrasse\tOrt");
    QTest::keyClick(m_grid, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(heard(), u"down 2 0, menu");
}

TEST_F(DataTableEventsTest, AMarkedRowIsTheCurrentOneAndLeavesTheFocusAlone) {
    showFlat();
    m_field->setFocus();
    heard();
    m_grid->appendRow({4, u"neu", u"Ort"});
    m_grid->markRow(m_grid->rowCount());
    EXPECT_EQ(m_grid->currentIndex().row(), 4);
    EXPECT_TRUE(m_field->hasFocus());
    EXPECT_EQ(heard(), QString());
}

TEST_F(DataTableEventsTest, OnlyTheRowHeaderFoldsAndOnlyWhereThereIsAChildTable) {
    showTwoLevels();
    press(0, 0);
    EXPECT_FALSE(isOpen(0));
    press(1, DataTable::rowHeaderColumn);
    EXPECT_FALSE(isOpen(1));
    EXPECT_EQ(heard(), "down 0 2, down 1 -5");
    doubleClick(0, 0);
    EXPECT_EQ(heard(), "down 0 2, open 0 2");
    doubleClick(0, DataTable::rowHeaderColumn);
    EXPECT_EQ(heard(), "down 0 -5");
    EXPECT_TRUE(isOpen(0));
}

TEST_F(DataTableEventsTest, KeysFoldThroughTheSameEvent) {
    showTwoLevels();
    press(0, 0);
    heard();
    const std::vector<std::pair<Qt::Key, bool>> folds{
        {Qt::Key_Right, true}, {Qt::Key_Left, false}, {Qt::Key_Plus, true}, {Qt::Key_Minus, false}};
    for (const auto& [pressed, open] : folds) {
        key(pressed);
        EXPECT_EQ(heard(), "down 0 -5") << pressed;
        EXPECT_EQ(isOpen(0), open) << pressed;
    }
    key(Qt::Key_Minus);
    key(Qt::Key_Asterisk);
    EXPECT_EQ(heard(), "");
    EXPECT_FALSE(isOpen(0));
}

} // namespace
