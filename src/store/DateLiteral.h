#pragma once

#include "Value.h"

#include <QStringView>
#include <optional>

/// The date between two number signs, written m/d/yyyy. Nothing if there is no such day.
std::optional<Date> readDateLiteral(QStringView text);
