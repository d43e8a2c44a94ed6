#pragma once

/// The work ledger.
namespace modArbeit {

/// True if the user who is logged in may use this part.
bool ArbeitsZugriff_Erlaubt();

} // namespace modArbeit
