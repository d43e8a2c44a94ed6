#pragma once

#include "Value.h"

#include <QStringView>
#include <optional>

/// The date between two number signs: m/d/yyyy or yyyy-mm-dd, either with a time behind it. Nothing if there
/// is no such day.
std::optional<Date> readDateLiteral(QStringView text);
