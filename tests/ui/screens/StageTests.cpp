#include "RecordingScreen.h"
#include "Stage.h"

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class StageTest : public ::testing::Test {
protected:
    StageTest() {
        frame.resize(400, 300);
        auto* column = new QVBoxLayout(&frame);
        stage = new Stage;
        column->addWidget(stage);
        frame.show();
    }

    QString takeLog() { return std::exchange(log, {}).join(u' '); }

    QStringList log;
    QWidget frame;
    Stage* stage;
    RecordingScreen a{u"a"_s, log};
    RecordingScreen b{u"b"_s, log};
    RecordingScreen c{u"c"_s, log};
};

TEST_F(StageTest, ActivationFollowsTheFront) {
    a.Show();
    b.Show();
    EXPECT_EQ(takeLog(), u"+a -a +b"_s);
    b.Show();
    EXPECT_EQ(takeLog(), QString()) << "it is in front already";
    a.Hide();
    EXPECT_EQ(takeLog(), QString()) << "hidden from behind";
    a.Show();
    a.Hide();
    EXPECT_EQ(takeLog(), u"-b +a -a +b"_s);
    b.Hide();
    EXPECT_EQ(takeLog(), u"-b"_s);
    EXPECT_EQ(stage->front(), nullptr);
}

TEST_F(StageTest, HandlersMayChangeTheFrontInTheMiddleOfAChange) {
    a.Show();
    a.onDeactivate = [this] { c.Show(); };
    takeLog();
    b.Show();
    EXPECT_EQ(takeLog(), u"-a +c"_s) << "b was covered before its turn came";
    EXPECT_EQ(stage->front(), &c);

    b.onActivate = [this] { b.Hide(); };
    b.Show();
    EXPECT_EQ(takeLog(), u"-c +b -b +c"_s);
    EXPECT_EQ(stage->front(), &c);
    EXPECT_TRUE(c.isVisible());
}

TEST_F(StageTest, NothingIsActivatedWhileTheFrameIsHidden) {
    frame.hide();
    a.Show();
    b.Show();
    b.Hide();
    EXPECT_EQ(takeLog(), QString());
    frame.show();
    EXPECT_EQ(takeLog(), u"+a"_s);
}

TEST_F(StageTest, AScreenGetsItsFocusBackWithTheFront) {
    QLineEdit first(&a);
    QLineEdit second(&a);
    QLineEdit other(&b);
    a.Show();
    QApplication::setActiveWindow(&frame);
    EXPECT_TRUE(first.hasFocus());
    second.setFocus();
    b.Show();
    EXPECT_TRUE(other.hasFocus());
    b.Hide();
    EXPECT_TRUE(second.hasFocus());
}

} // namespace
