#include "NavigationBar.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class NavigationBarTest : public ::testing::Test {
protected:
    NavigationBarTest() {
        bar.setItemSpacing(80);
        BarGroup* system = bar.addGroup(u"System"_qs);
        system->addItem(u"Zugriff"_qs, u"Benutzer &&\r\nZugriffsverw."_qs, u"zugriff"_qs);
        system->addItem(u"Parameter"_qs, u"Systempar."_qs, u"parameter"_qs);
        system->addItem(u"Basisdaten"_qs, u"Basisdaten"_qs, u"basisdaten"_qs);
        BarGroup* club = bar.addGroup(u"Organisation"_qs);
        for (const QString& key :
             {u"Fangbuch"_qs, u"Fangauswertung"_qs, u"Kontakte"_qs, u"Arbeit"_qs, u"Besatzung"_qs})
            club->addItem(key, key + u"\r\n."_qs, key.toLower());
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

    NavigationBar bar{u"ButtnBar"_qs};
    QStringList clicked;
};

TEST_F(NavigationBarTest, KeysGoFromItemToItemAndClick) {
    bar.setFocus();
    EXPECT_EQ(focused(), u"Fangbuch"_qs) << "the first item of the current group";
    press(Qt::Key_Return);
    press(Qt::Key_Up);
    EXPECT_EQ(focused(), u"Basisdaten"_qs) << "on into the group above";
    press(Qt::Key_Space);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(focused(), u"Zugriff"_qs);
    EXPECT_EQ(clicked.join(u' '), u"Fangbuch Basisdaten"_qs);
}

} // namespace
