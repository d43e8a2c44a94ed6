#pragma once

#include "RuntimeError.h"

#include <QStringView>

namespace dialect {

/// An error of this kind over a place in the statement, a long one cut off.
RuntimeError syntaxError(const RuntimeError::Kind& fault, QStringView place);
/// A name that is no field of the tables at hand is taken for a parameter that nobody gave (3061).
RuntimeError unknownField();

} // namespace dialect
