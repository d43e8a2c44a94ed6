// main() of all test programs that show widgets.

#include "FixedClock.h"
#include "Theme.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1");
    ::testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Theme::apply(Theme::Mode::Light);
    const FixedClock clock;
    return RUN_ALL_TESTS();
}
