#include "MenuItems.h"

#include "CommandFailure.h"
#include "Controls.h"
#include "Hand.h"
#include "Main.h"
#include "Screens.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {

QString plainName(const QString& name) { return name.mid(name.indexOf(u'.') + 1); }

/// The menu or the menu bar that holds the item; null if there is none.
template<typename Holder>
Holder* holding(const QAction* item) {
    for (QObject* place : item->associatedObjects()) {
        if (auto* holder = qobject_cast<Holder*>(place)) return holder;
    }
    return nullptr;
}

// The name may be that of a menu. A user clicks its title.
QAction* named(const QString& name) {
    for (Screen* screen : Screens::all()) {
        if (auto* item = screen->findChild<QAction*>(name)) return item;
        if (auto* menu = screen->findChild<QMenu*>(name)) return menu->menuAction();
    }
    return nullptr;
}

void requireUsable(const QAction* item, const QString& name) {
    if (!MenuItems::isVisible(item)) throw CommandFailure{u"the menu item %1 is not visible"_s.arg(name)};
    if (!item->isEnabled()) throw CommandFailure{u"the menu item %1 is not enabled"_s.arg(name)};
}

void clickInBar(QMenuBar* bar, QAction* title, const QString& name) {
    const QPoint place = bar->actionGeometry(title).center();
    Controls::requireReachable(bar, place, name);
    Hand::click(bar, place);
}

/// Opens the menu through the menu bar. Does nothing if it is open.
void open(QMenu* menu, const QString& name) {
    if (menu->isVisible()) return;
    QAction* title = menu->menuAction();
    requireUsable(title, name);
    if (QMenuBar* bar = holding<QMenuBar>(title)) return clickInBar(bar, title, name);
    QMenu* outer = holding<QMenu>(title);
    if (!outer) throw CommandFailure{u"the menu of %1 is not open"_s.arg(name)};
    open(outer, name);
    Hand::click(outer, outer->actionGeometry(title).center());
}

} // namespace

namespace MenuItems {

bool isItem(const QString& name) { return plainName(name).startsWith(u"mnu"_s); }

QAction* find(const QString& name) {
    QAction* item = named(plainName(name));
    if (!item) throw CommandFailure{u"there is no menu item %1"_s.arg(name)};
    return item;
}

bool isVisible(const QAction* item) {
    if (!item->isVisible()) return false;
    if (const QMenuBar* bar = holding<QMenuBar>(item)) return bar->isVisible();
    const QMenu* menu = holding<QMenu>(item);
    return menu && (menu->isVisible() || isVisible(menu->menuAction()));
}

void click(const QString& name) {
    QAction* item = find(name);
    if (QMenuBar* bar = holding<QMenuBar>(item)) return clickInBar(bar, item, name);
    QMenu* menu = holding<QMenu>(item);
    if (!menu) throw CommandFailure{u"%1 stands in no menu"_s.arg(name)};
    if (!menu->isVisible()) dismissOpenMenu();
    open(menu, name);
    if (!menu->isVisible()) throw CommandFailure{u"the menu of %1 did not open"_s.arg(name)};
    try {
        requireUsable(item, name);
    } catch (const CommandFailure&) {
        dismissOpenMenu();
        throw;
    }
    const QPoint place = menu->actionGeometry(item).center();
    Hand::move(menu, place);
    Hand::click(menu, place);
}

void dismissOpenMenu() {
    constexpr int deepest = 8;
    for (int level = 0; level < deepest && QApplication::activePopupWidget(); ++level)
        Hand::key(Qt::Key_Escape);
}

} // namespace MenuItems
