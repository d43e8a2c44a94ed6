#include "PlayedProgram.h"
#include "Screens.h"

#include "Bereiche.h"
#include "Info.h"
#include "Kontakt.h"
#include "Login.h"
#include "Main.h"
#include "Session.h"
#include "SuchKont.h"
#include "TextBox.h"
#include "modHandbuch.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// True for what a user operates and a screen reader must name.
bool isControl(const QWidget* widget) {
    const bool isPart = widget->objectName().startsWith(u"qt_"_s) || widget->objectName().isEmpty();
    return !isPart &&
           (qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
            qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractScrollArea*>(widget));
}

QString nameOf(QWidget* widget) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
    return interface ? interface->text(QAccessible::Name) : QString();
}

/// The shortcut of Alt and a letter that goes to the widget; empty if there is none.
QKeySequence letterOf(const QWidget* widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) return button->shortcut();
    const auto* label = qobject_cast<const QLabel*>(widget);
    return label && label->buddy() ? QKeySequence::mnemonic(label->text()) : QKeySequence();
}

void expectAccess(Screen& screen) {
    const QString page = modHandbuch::SeiteFuer(screen.objectName()) + u".html"_s;
    EXPECT_TRUE(QFile::exists(programFolder() + u"/Handbuch/"_s + page)) << page.toStdString();
    screen.Show();
    QMap<QKeySequence, QString> letters;
    const auto take = [&](const QKeySequence& letter, const QString& who) {
        if (letter.isEmpty()) return;
        EXPECT_FALSE(letters.contains(letter))
            << screen.objectName().toStdString() << ": " << who.toStdString() << " and "
            << letters.value(letter).toStdString();
        letters[letter] = who;
    };
    if (!screen.isWindow())
        for (const QAction* menu : the<Main>().menuBar->actions())
            take(QKeySequence::mnemonic(menu->text()), menu->text());
    for (QWidget* widget : screen.findChildren<QWidget*>()) {
        const auto* key = qobject_cast<QToolButton*>(widget);
        const bool outOfReach = key && key->shortcut().isEmpty() && !(key->focusPolicy() & Qt::TabFocus);
        EXPECT_FALSE(outOfReach) << screen.objectName().toStdString() << "."
                                 << widget->objectName().toStdString();
        take(letterOf(widget), widget->objectName());
        const bool isNameless = isControl(widget) && nameOf(widget).isEmpty();
        EXPECT_FALSE(isNameless) << screen.objectName().toStdString() << "."
                                 << widget->objectName().toStdString();
    }
}

TEST(Access, EveryScreenHasAPageAndItsControlsNamesAndLettersOfTheirOwn) {
    const QTemporaryDir folder;
    PlayedProgram program(folder.path() + u"/programm"_s, folder.path());
    setEventsEnded(false); // an earlier test has ended them
    program.start();
    expectAccess(the<Login>());
    the<Login>().txtBenutzer->setText(u"Admin"_s);
    the<Login>().cmdOK->click();
    // The work ledger opens the search for a member first.
    QTimer search;
    QObject::connect(&search, &QTimer::timeout, [] {
        if (the<SuchKont>().isModalNow()) the<SuchKont>().Hide();
    });
    search.start(1);
    for (const Bereich& bereich : bereiche()) expectAccess(bereich.screen.make());
    for (Screen* screen : std::initializer_list<Screen*>{&the<Kontakt>(), &the<SuchKont>(), &the<Info>()})
        expectAccess(*screen);
}

} // namespace
