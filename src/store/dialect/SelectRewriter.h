#pragma once

#include "Operand.h"
#include "Scope.h"
#include "SelectPlan.h"
#include "TokenReader.h"

namespace dialect {

/// Reads a whole statement, which must be a single SELECT.
///
/// Errors: 3075 for what is not well-formed; 3061 and 3079 for fields, 3078 for tables that cannot be found;
/// 3464 for a comparison of a text with a number; 3122 for a field beside an aggregate; 3190 for more
/// than 255 columns; 3360 for more than 32 tables or a statement of many thousand words.
SelectPlan rewriteSelect(QStringView source, const LexedStatement& statement);

/// A sub-select, read from its SELECT up to the bracket that ends it. It stands for a value: Null without a
/// row, error 3354 with more than one, 3306 with more than one column.
Operand readValueSelect(TokenReader& reader, const Scope& outer);

} // namespace dialect
