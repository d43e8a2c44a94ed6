#pragma once

#include <QString>

class QAction;

/// The items of the frame's menus and of the context menu that stands open, by their names.
namespace MenuItems {

bool isItem(const QString& name);
/// CommandFailure if there is none.
QAction* find(const QString& name);
/// True if a user could see it: in a menu of the bar, or in a context menu that stands open.
bool isVisible(const QAction* item);
/// Clicks it, and what leads to it before.
void click(const QString& name);
/// A click beside an open menu, or Esc: it goes without a choice.
void dismissOpenMenu();

} // namespace MenuItems
