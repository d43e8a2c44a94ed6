#pragma once

#include <QString>

class NavigationBar;
class Screen;

/// The navigation bar and the screens behind it.
namespace modNavigation {

/// Builds the bar.
void InitButtnBar();
/// Removes all items. Call when no user is logged in.
void LeereButtnBar();
/// Removes the item of this key, if it is still there.
void entferne(const QString& key);
/// Shows in the bar to which item the screen in front belongs, whichever way it came there. One of no item,
/// such as a preview, changes nothing.
void markiere(NavigationBar& bar, const Screen* front);
/// Does what a click on the item of this key does: hides all screens and shows the item's own.
void zeigeBereich(const QString& key);
/// Shows the first screen after the start-up: the catch book, or the first one that the user may open.
void zeigeErstesFenster();

} // namespace modNavigation
