#pragma once

#include <QString>

/// True if the group of the logged-in user has the right, a field of Gruppen. Reads the database at each
/// call, so that a change of rights takes effect at once. `module` and `routine` are for the error message
/// box.
bool zugriffErlaubt(const QString& module, const QString& routine, const QString& right);
