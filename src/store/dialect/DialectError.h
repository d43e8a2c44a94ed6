#pragma once

#include "RuntimeError.h"

#include <QStringView>

namespace dialect {

enum class SyntaxFault : quint8 { General, Operator, Comma, Text, Date, NoSelect, From, Nesting };

/// Error 3075 with its reason and the place at fault, a long one cut off.
RuntimeError syntaxError(SyntaxFault fault, QStringView place);
/// A name that is no field of the tables at hand is taken for a parameter that nobody gave (3061).
RuntimeError unknownField();
RuntimeError ambiguousField(const QString& name);        ///< 3079
RuntimeError unknownFunction(const QString& name);       ///< 3085
RuntimeError misplacedAggregate(QStringView place);      ///< 3096
RuntimeError fieldOutsideAggregate(const QString& name); ///< 3122
RuntimeError tooManyFields();                            ///< 3190, of a result
RuntimeError tooManyColumns();                           ///< 3306, of a sub-select
RuntimeError tooComplex();                               ///< 3360
RuntimeError unlikeKinds();                              ///< 3464

} // namespace dialect
