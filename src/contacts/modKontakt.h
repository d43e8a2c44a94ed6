#pragma once

/// Contacts and members.
namespace modKontakt {

/// True if the user who is logged in may use this part.
bool KontaktZugriff_Erlaubt();

} // namespace modKontakt
