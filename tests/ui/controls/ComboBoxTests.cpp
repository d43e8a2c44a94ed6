#include "ComboBox.h"
#include "ErrorOf.h"

#include <QAbstractItemView>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ComboBoxTest : public ::testing::Test {
protected:
    ComboBoxTest() {
        for (const QString& fish : {u"Hecht"_s, u"Zander"_s, u"Aal"_s}) combo.AddItem(fish);
        QObject::connect(&combo, &ComboBox::Click, [this] { ++clicks; });
        combo.show();
    }

    void pick(int row) {
        combo.showPopup();
        QAbstractItemView* list = combo.view();
        const QModelIndex entry = combo.model()->index(row, 0);
        QTest::mouseMove(list->viewport(), list->visualRect(entry).center());
        // Waits, since the list takes an early release for the end of the press that opened it.
        QTest::qWait(QApplication::doubleClickInterval() + 50);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualRect(entry).center());
    }

    int takeClicks() { return std::exchange(clicks, 0); }

    ComboBox combo{u"cboFArt"_s};
    int clicks = 0;
};

TEST_F(ComboBoxTest, FillingSelectsNothingAndDoesNotClick) {
    combo.AddItem(u"Karpfen"_s);
    EXPECT_EQ(combo.currentIndex(), -1);
    combo.setListIndex(1);
    takeClicks();
    combo.insertItem(0, u"Barsch"_s);
    EXPECT_EQ(combo.currentText(), u"Zander"_s);
    combo.clear();
    EXPECT_EQ(combo.count(), 0);
    EXPECT_EQ(takeClicks(), 0);
}

TEST_F(ComboBoxTest, AChangeByProgramClicksOnce) {
    combo.setText(u"Zander"_s);
    EXPECT_EQ(takeClicks(), 1);
    combo.setText(u"Zander"_s);
    EXPECT_EQ(takeClicks(), 0) << "nothing has changed";
    combo.setText(u"aal"_s);
    EXPECT_EQ(combo.currentText(), u"Aal"_s) << "entries are found regardless of case";
    combo.setText(QString());
    EXPECT_EQ(combo.currentIndex(), -1);
    EXPECT_EQ(takeClicks(), 2);
}

TEST_F(ComboBoxTest, AnUnknownTextOrIndexIsAnError) {
    combo.setListIndex(0);
    EXPECT_EQ(errorOf([&] { combo.setText(u"Wal"_s); }), 383);
    EXPECT_EQ(errorOf([&] { combo.setListIndex(3); }), 380);
    EXPECT_EQ(combo.currentText(), u"Hecht"_s);
}

TEST_F(ComboBoxTest, ANameMayBeTypedSlowlyAndWithItsBlanks) {
    for (const QString& water : {u"Leise (Oberlauf)"_s, u"Leise (Unterlauf)"_s}) combo.AddItem(water);
    QTest::keyClicks(&combo, u"L"_s);
    QTest::qWait(400); // Qt's own interval
    QTest::keyClicks(&combo, u"eise (U"_s);
    EXPECT_EQ(combo.currentText(), u"Leise (Unterlauf)"_s);
    EXPECT_FALSE(combo.view()->isVisible());
    QApplication::setKeyboardInputInterval(0);
    QTest::qWait(1);
    QTest::keyClick(&combo, Qt::Key_Space);
    QApplication::setKeyboardInputInterval(2000);
    EXPECT_TRUE(combo.view()->isVisible()) << "with nothing being typed it opens the list";
}

TEST_F(ComboBoxTest, SortedEntriesStandInGermanOrder) {
    ComboBox sorted(u"cboGew"_s, nullptr, ComboBox::Kind::DropDownList, ComboBox::Order::Sorted);
    for (const QString& name : {u"Zander"_s, u"öhe"_s, u"Ohm"_s, u"apfel"_s, u"Äsche"_s, u"Ast"_s}) {
        sorted.AddItem(name);
        if (name == u"Ohm") sorted.setText(name);
    }
    QStringList entries;
    for (int i = 0; i < sorted.count(); ++i) entries.append(sorted.itemText(i));
    EXPECT_EQ(entries.join(u' '), u"apfel Äsche Ast öhe Ohm Zander"_s);
    EXPECT_EQ(sorted.currentText(), u"Ohm"_s);
}

TEST_F(ComboBoxTest, TheWheelChangesItOnlyWithTheFocus) {
    combo.setListIndex(0);
    takeClicks();
    QWheelEvent roll({5, 5}, {5, 5}, {0, -120}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                     false);
    QApplication::setActiveWindow(nullptr);
    QApplication::sendEvent(&combo, &roll);
    EXPECT_EQ(combo.currentIndex(), 0);
    QApplication::setActiveWindow(&combo);
    combo.setFocus();
    QApplication::sendEvent(&combo, &roll);
    EXPECT_EQ(combo.currentIndex(), 1);
}

} // namespace
