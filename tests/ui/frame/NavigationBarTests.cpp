#include "NavigationBar.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class NavigationBarTest : public ::testing::Test {
protected:
    NavigationBarTest() {
        for (const QString& key : {u"Zugriff"_s, u"Parameter"_s, u"Basisdaten"_s})
            bar.addItem(u"System"_s, key, key, key.toLower());
        for (const QString& key :
             {u"Fangbuch"_s, u"Fangauswertung"_s, u"Kontakte"_s, u"Arbeit"_s, u"Besatzung"_s})
            bar.addItem(u"Organisation"_s, key, key + u"\r\n."_s, key.toLower());
        bar.setCurrentGroup(1);
        QObject::connect(&bar, &NavigationBar::itemClicked,
                         [this](const QString& key) { clicked.append(key); });
        bar.show();
        QApplication::setActiveWindow(&bar);
    }

    QString focused() const {
        return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
    }
    void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    NavigationBar bar{u"ButtnBar"_s};
    QStringList clicked;
};

TEST_F(NavigationBarTest, KeysGoFromItemToItemAndClick) {
    bar.setFocus();
    EXPECT_EQ(focused(), u"Fangbuch"_s) << "the first item of the current group";
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(focused(), u"Basisdaten"_s) << "on into the group above";
    press(Qt::Key_Space);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(focused(), u"Zugriff"_s);
    EXPECT_EQ(clicked.join(u' '), u"Fangauswertung Basisdaten"_s);
}

} // namespace
