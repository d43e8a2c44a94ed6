#include "Operand.h"

#include "DialectError.h"
#include "SqlNames.h"

namespace dialect {

Operand joined(const Operand& left, const Operand& right, QByteArray sql, FieldKind kind) {
    return {.sql = std::move(sql),
            .kind = kind,
            .aggregate = left.aggregate || right.aggregate,
            .bareField = left.bareField.isEmpty() ? right.bareField : left.bareField};
}

void requireComparable(const Operand& left, const Operand& right) {
    if ((left.isText() && right.isNumeric()) || (left.isNumeric() && right.isText()))
        throw runtimeError(RuntimeError::criteriaDiffer);
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

} // namespace dialect
