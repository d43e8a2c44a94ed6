#pragma once

#include "Schema.h"

#include <QByteArray>

namespace dialect {

/// A rewritten expression and what is known of it.
struct Operand {
    QByteArray sql;
    FieldKind kind = FieldKind::Untyped;
    /// Holds an aggregate.
    bool aggregate = false;
    /// The first field that stands in it outside of any aggregate.
    QString bareField = {};

    bool isText() const { return kind == FieldKind::Text; }
    bool isNumeric() const { return kind != FieldKind::Text && kind != FieldKind::Untyped; }
};

/// An operand that carries on what is known of both parts.
Operand joined(const Operand& left, const Operand& right, QByteArray sql, FieldKind kind);

/// A comparison with one of the signs = <> < <= > >=. Error 3464 for a text beside a number.
Operand compared(const Operand& left, const QByteArray& sign, const Operand& right);
/// Error 3464 when one is known to be a text and the other to be none.
void requireComparable(const Operand& left, const Operand& right);
/// The expression as one side of a comparison with texts, if it is one.
QByteArray collated(const Operand& operand);
/// Truth as a number: True counts as -1 wherever a number is wanted, though the file holds 1.
QByteArray asNumber(const Operand& operand);

} // namespace dialect
