#include "RecordingScreen.h"
#include "Screens.h"
#include "Stage.h"
#include "TextBox.h"

#include <QApplication>
#include <QGroupBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Search : public Screen {
public:
    Search()
        : Screen(u"Search"_s, u"Suche"_s) {}
};

void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

class ScreenTest : public ::testing::Test {
protected:
    ~ScreenTest() override {
        Screens::removeAll();
        settle();
    }

    QStringList log;
};

TEST_F(ScreenTest, AScreenMayUnloadItselfInItsOwnHandler) {
    QPointer<Search> search = &the<Search>();
    auto* key = new QPushButton(search);
    QObject::connect(key, &QPushButton::clicked, search, [&] {
        runEvent([&] {
            unload<Search>();
            EXPECT_FALSE(isLoaded<Search>());
            settle();
            ASSERT_TRUE(search) << "its handler is still running";
            search->setWindowTitle(u"noch da"_s);
            EXPECT_EQ(search->accessibleName(), u"noch da"_s) << "a screen reader has no other caption";
        });
    });
    key->click();
    settle();
    EXPECT_FALSE(search);
}

TEST_F(ScreenTest, AModalScreenReturnsWhenItIsHiddenClosedOrUnloaded) {
    const std::pair<std::function<void()>, bool> endings[] = {
        {[] { the<Search>().Hide(); }, true},
        {[] { the<Search>().close(); }, true},
        {[] { unload<Search>(); }, false},
    };
    for (const auto& [ending, kept] : endings) {
        QWidget frame;
        frame.show();
        bool wasModal = false;
        QTimer::singleShot(0, [&] {
            wasModal = the<Search>().isModalNow() && QApplication::activeModalWidget() == &the<Search>();
            runEvent(ending);
        });
        runEvent([] { the<Search>().ShowModal(); });
        EXPECT_TRUE(wasModal);
        EXPECT_EQ(isLoaded<Search>(), kept);
        EXPECT_FALSE(kept && (the<Search>().isVisible() || the<Search>().isModalNow()));
        settle();
    }
}

TEST_F(ScreenTest, EachKeyIsSeenOnceBeforeTheControl) {
    RecordingScreen screen(u"form"_s, log);
    auto* group = new QGroupBox(&screen);
    auto* inner = new QWidget;
    auto* key = new QPushButton(inner);
    inner->setParent(group);
    auto* box = new TextBox(u"txt"_s, inner);
    screen.show();
    // Neither the button nor its parents handle F3, so it passes through all of them.
    key->setFocus();
    QTest::keyClick(key, Qt::Key_F3);
    QTest::keyClick(key, Qt::Key_F3);
    EXPECT_EQ(screen.keys, (QList<int>{Qt::Key_F3, Qt::Key_F3}));
    screen.swallowed = Qt::Key_X;
    box->setFocus();
    QTest::keyClicks(box, u"axb"_s);
    EXPECT_EQ(box->text(), u"ab"_s);
    EXPECT_EQ(screen.keys.mid(2), (QList<int>{Qt::Key_A, Qt::Key_X, Qt::Key_B}));

    screen.keys.clear();
    key->setFocus();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_F3, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(key, &held);
    EXPECT_TRUE(screen.keys.isEmpty()) << "a key held down saves once, not thirty times a second";
}

TEST_F(ScreenTest, AnErrorThatNobodyCaughtGoesToTheFailureRoutine) {
    QList<int> numbers;
    setEventFailure([&](const RuntimeError& error) { numbers.append(error.number); });
    runEvent([&] {
        runEvent([] { throw RuntimeError{13, {}}; });
        numbers.append(0);
    });
    runEvent([] { throw std::bad_alloc(); });
    runEvent([] { throw std::logic_error("x"); });
    setEventFailure({});
    EXPECT_EQ(numbers, (QList<int>{13, 0, 7, 440})) << "the innermost catches, the outer one goes on";
    EXPECT_THROW(runEvent([] { throw RuntimeError{6, {}}; }), RuntimeError);
}

} // namespace
