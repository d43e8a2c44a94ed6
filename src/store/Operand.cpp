#include "Operand.h"

#include "DialectError.h"
#include "SqlFunctions.h"

Operand joined(const Operand& left, const Operand& right, QByteArray sql, FieldKind kind) {
    return {.sql = std::move(sql),
            .kind = kind,
            .aggregate = left.aggregate || right.aggregate,
            .bareField = left.bareField.isEmpty() ? right.bareField : left.bareField};
}

void requireComparable(const Operand& left, const Operand& right) {
    if ((left.isText() && right.isNumeric()) || (left.isNumeric() && right.isText())) throw unlikeKinds();
}

QByteArray collated(const Operand& operand) {
    return operand.isText() ? operand.sql + " COLLATE " + sqlname::textCollation : operand.sql;
}

QByteArray asNumber(const Operand& operand) {
    return operand.kind == FieldKind::Boolean ? "(-" + operand.sql + ')' : operand.sql;
}

Operand compared(const Operand& left, const QByteArray& sign, const Operand& right) {
    requireComparable(left, right);
    const bool bothTruths = left.kind == FieldKind::Boolean && right.kind == FieldKind::Boolean;
    const auto side = [bothTruths](const Operand& operand) {
        return bothTruths ? operand.sql : asNumber({.sql = collated(operand), .kind = operand.kind});
    };
    return joined(left, right, '(' + side(left) + ' ' + sign + ' ' + side(right) + ')', FieldKind::Boolean);
}

Operand calculated(const Operand& left, char sign, const Operand& right) {
    if (sign == '+' && left.isText() && right.isText())
        return joined(left, right, '(' + left.sql + " || " + right.sql + ')', FieldKind::Text);
    if (left.isText() || right.isText()) throw unlikeKinds();
    // A quotient has its fraction, also that of two whole numbers.
    const QByteArray first = sign == '/' ? "CAST(" + asNumber(left) + " AS REAL)" : asNumber(left);
    return joined(left, right, '(' + first + ' ' + sign + ' ' + asNumber(right) + ')', FieldKind::Number);
}

Operand concatenated(const Operand& left, const Operand& right) {
    const auto side = [](const Operand& operand) { return "IFNULL(" + asNumber(operand) + ", '')"; };
    return joined(left, right, '(' + side(left) + " || " + side(right) + ')', FieldKind::Text);
}
