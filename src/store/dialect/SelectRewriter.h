#pragma once

#include "Operand.h"
#include "Scope.h"
#include "SelectPlan.h"
#include "TokenReader.h"

namespace dialect {

/// Rewrites a whole statement, which must be a single SELECT.
///
/// Errors: 3075 for a malformed statement; 3061 for an unknown and 3079 for an ambiguous field; 3078 for an
/// unknown table; 3464 for a comparison of a text with a number; 3122 for a field beside an aggregate; 3190
/// for more than 255 columns; 3360 for more than 32 tables or 10,000 tokens.
SelectPlan rewriteSelect(QStringView source, const LexedStatement& statement);

/// Reads a sub-select that is used as a value, from its SELECT up to the bracket that ends it. The value is
/// Null if no row is found. Error 3354 for more than one row, which shows only when the statement runs. Error
/// 3306 for more than one column.
Operand readValueSelect(TokenReader& reader, const Scope& outer);

} // namespace dialect
