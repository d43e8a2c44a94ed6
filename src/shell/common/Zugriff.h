#pragma once

#include <QString>

/// True if the group of the user who is logged in has a right. Goes to the database anew each time, so a
/// change of rights acts at once; `module` and `routine` stand in the error box.
bool zugriffErlaubt(const QString& module, const QString& routine, const QString& right);
