#pragma once

/// The end of the program by the menu.
namespace modEnde {

/// Closes the database and unloads the screens.
void mnuBeenden_Click();

} // namespace modEnde
