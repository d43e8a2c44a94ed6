#pragma once

#include <QString>

/// A session value as text. A null text if there is no value of this name.
QString sessionValue(const QString& name);
