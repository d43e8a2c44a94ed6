#pragma once

/// The end of the session.
namespace modEnde {

/// Closes the database and unloads the screens.
void mnuBeenden_Click();

} // namespace modEnde
