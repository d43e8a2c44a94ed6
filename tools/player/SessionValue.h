#pragma once

#include <QString>

/// A session value by its name as text; a null text for a name that there is not.
QString sessionValue(const QString& name);
