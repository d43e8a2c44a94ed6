#include "DateBox.h"
#include "FixedClock.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A date box beside another control, set to February, which lacks some days.
class DateBoxTest : public testing::Test {
protected:
    DateBoxTest() {
        box.setDate(Date::fromQDate({2026, 2, 14}));
        beside.move(0, 60);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        box.setFocus();
    }

    void type(const QString& text) {
        box.lineEdit()->selectAll();
        QTest::keyClicks(box.lineEdit(), text);
    }

    FixedClock m_clock;
    QWidget window;
    DateBox box{u"pvDate"_s, &window};
    QLineEdit beside{&window};
};

TEST_F(DateBoxTest, ReadsADateAsItIsTyped) {
    const std::pair<QString, QDate> cases[] = {
        {u"31.01.2026"_s, {2026, 1, 31}}, {u"31012026"_s, {2026, 1, 31}}, {u"310126"_s, {2026, 1, 31}},
        {u"31,1,26"_s, {2026, 1, 31}},    {u"1.2.05"_s, {2005, 2, 1}},    {u"29.2.2024"_s, {2024, 2, 29}},
        {u"3.12.1999"_s, {1999, 12, 3}},  {u" 5.6. "_s, {2026, 6, 5}},    {u"0506"_s, {2026, 6, 5}}};
    for (const auto& [typed, day] : cases) {
        type(typed);
        EXPECT_TRUE(box.isReadable()) << typed.toStdString();
        EXPECT_EQ(box.date().toQDate(), day) << typed.toStdString();
    }
    QApplication::clipboard()->setText(u"\u00a05.6.\r\n"_s);
    box.lineEdit()->selectAll();
    box.lineEdit()->paste();
    beside.setFocus();
    EXPECT_EQ(box.currentText(), u"05.06.2026"_s) << "left, it stands in full";
    QTest::keyClick(&beside, Qt::Key_Backtab);
    QTest::keyClicks(box.lineEdit(), u"1.1."_s);
    EXPECT_EQ(box.currentText(), u"1.1."_s) << "coming by a key, one writes over it";
}

TEST_F(DateBoxTest, TakesNothingElseForADate) {
    for (const QString& typed : {u""_s, u"5"_s, u"30.2.2026"_s, u"99999999"_s, u"01.02.20051"_s,
                                 u"1.12.2005 10:30"_s, u"12:30"_s, u"morgen"_s}) {
        type(typed);
        if (typed.isEmpty()) box.clearEditText();
        EXPECT_FALSE(box.isReadable()) << typed.toStdString();
        EXPECT_EQ(box.date().toQDate(), QDate(2026, 2, 14)) << typed.toStdString();
    }
    beside.setFocus();
    EXPECT_EQ(box.currentText(), u"morgen"_s) << "what is wrong stays for its writer to see";
}

TEST_F(DateBoxTest, GivesBackWhatItCannotShow) {
    for (const double days : {0.0, 46095.75, 1e9, -1e9}) {
        box.setDate(Date{days});
        beside.setFocus();
        box.setFocus();
        EXPECT_TRUE(box.isReadable());
        EXPECT_EQ(box.date().days, days);
    }
    type(u"14.3.2026"_s);
    EXPECT_EQ(box.date(), Date::fromQDate({2026, 3, 14}));
}

TEST_F(DateBoxTest, GoesByDaysAndThroughTheCalendar) {
    QTest::keyClick(box.lineEdit(), Qt::Key_Down);
    EXPECT_EQ(box.currentText(), u"13.02.2026"_s);
    type(u"28.2."_s);
    QTest::keyClick(box.lineEdit(), Qt::Key_Up);
    EXPECT_EQ(box.currentText(), u"01.03.2026"_s);
    box.setDate({});
    QTest::keyClick(box.lineEdit(), Qt::Key_F4);
    auto* calendar = qobject_cast<QCalendarWidget*>(QApplication::activePopupWidget());
    ASSERT_TRUE(calendar);
    EXPECT_EQ(calendar->selectedDate(), QDate(2026, 3, 14)) << "without a date it begins today";
    EXPECT_EQ(box.date(), Date{}) << "looking is not picking";
    calendar->setSelectedDate({2026, 5, 1});
    QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : calendar, Qt::Key_Return);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(box.currentText(), u"01.05.2026"_s);
}

} // namespace
