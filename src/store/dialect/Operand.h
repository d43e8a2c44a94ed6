#pragma once

#include "Schema.h"

#include <QByteArray>

namespace dialect {

/// A rewritten expression and its properties.
struct Operand {
    QByteArray sql;
    FieldKind kind = FieldKind::Untyped;
    /// Whether it contains an aggregate.
    bool aggregate = false;
    /// Its first field outside of any aggregate, empty if there is none.
    QString bareField = {};

    bool isText() const { return kind == FieldKind::Text; }
    bool isNumeric() const { return kind != FieldKind::Text && kind != FieldKind::Untyped; }
};

/// An operand of this SQL and kind. The other properties come from its two parts.
Operand joined(const Operand& left, const Operand& right, QByteArray sql, FieldKind kind);

/// A comparison; `sign` is one of = <> < <= > >=. Error 3464 if one side is a text and the other a number.
Operand compared(const Operand& left, const QByteArray& sign, const Operand& right);
/// Error 3464 if one is known to be a text and the other to be none.
void requireComparable(const Operand& left, const Operand& right);
/// The SQL for a comparison: a text gets our collation, anything else stays as it is.
QByteArray collated(const Operand& operand);
/// The SQL as a number. A truth value in the file is 1, but in the dialect True counts as -1.
QByteArray asNumber(const Operand& operand);

} // namespace dialect
