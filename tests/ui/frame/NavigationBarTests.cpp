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

TEST_F(NavigationBarTest, ItemsMayGoInTheMiddleOfTheirOwnClick) {
    QObject::connect(&bar, &NavigationBar::itemClicked, [this](const QString& key) {
        for (BarGroup* group : bar.groups()) group->removeItem(key);
    });
    bar.group(u"System"_qs)->removeItem(u"Fangbuch"_qs);
    EXPECT_TRUE(bar.item(u"Fangbuch"_qs)) << "it is in the other group";
    for (const QString& key : {u"Zugriff"_qs, u"Parameter"_qs, u"Basisdaten"_qs})
        QTest::mouseClick(bar.item(key), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(clicked.size(), 3);
    EXPECT_TRUE(bar.group(u"System"_qs)->items().isEmpty()) << "the heading stays without items";
    EXPECT_EQ(bar.item(u"Parameter"_qs), nullptr);
    EXPECT_EQ(bar.findChild<QWidget*>(u"Parameter"_qs), nullptr);
}

} // namespace
