#pragma once

#include <QString>

class QAction;

/// The items of the frame's menus and of an open context menu, by name.
namespace MenuItems {

bool isItem(const QString& name);
/// CommandFailure if there is no such item.
QAction* find(const QString& name);
/// True for a visible item of the menus of the bar, open or not, or of an open context menu.
bool isVisible(const QAction* item);
/// Opens the menus that lead to the item and clicks it.
void click(const QString& name);
/// Closes an open menu by Esc, without a choice.
void dismissOpenMenu();

} // namespace MenuItems
