#include "NavigationBar.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class NavigationBarTest : public ::testing::Test {
protected:
    NavigationBarTest() {
        bar.setItemSpacing(80);
        BarGroup* system = bar.addGroup(u"System"_s);
        system->addItem(u"Zugriff"_s, u"Benutzer &&\r\nZugriffsverw."_s, u"zugriff"_s);
        system->addItem(u"Parameter"_s, u"Systempar."_s, u"parameter"_s);
        system->addItem(u"Basisdaten"_s, u"Basisdaten"_s, u"basisdaten"_s);
        BarGroup* club = bar.addGroup(u"Organisation"_s);
        for (const QString& key :
             {u"Fangbuch"_s, u"Fangauswertung"_s, u"Kontakte"_s, u"Arbeit"_s, u"Besatzung"_s})
            club->addItem(key, key + u"\r\n."_s, key.toLower());
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
    press(Qt::Key_Return);
    press(Qt::Key_Up);
    EXPECT_EQ(focused(), u"Basisdaten"_s) << "on into the group above";
    press(Qt::Key_Space);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(focused(), u"Zugriff"_s);
    EXPECT_EQ(clicked.join(u' '), u"Fangbuch Basisdaten"_s);
}

} // namespace
