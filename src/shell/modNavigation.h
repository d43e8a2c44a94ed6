#pragma once

#include <QString>

class BarItem;
class NavigationBar;
class Screen;

/// The navigation bar and the screens behind it.
namespace modNavigation {

/// Builds the two groups of the bar.
void InitButtnBar();
/// Takes all items away: nobody is logged in.
void LeereButtnBar();
/// Gives the item the screen's window to keep track of; showing the screen is a separate step.
void binde(BarItem* item, Screen& screen);
/// Shows in the bar to which item the screen in front belongs, whichever way it came there. One of no item,
/// such as a preview, changes nothing.
void markiere(NavigationBar& bar, const Screen* front);
/// Hides every screen that can be behind the bar.
void VersteckeFormen();
/// A click on the item of this key: all screens are hidden and its own is shown.
void zeigeBereich(const QString& key);
/// After the start-up: the catch book, or the first screen that the user's rights leave.
void zeigeErstesFenster();

} // namespace modNavigation
