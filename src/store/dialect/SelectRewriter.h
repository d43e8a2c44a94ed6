#pragma once

#include "Lexer.h"
#include "Schema.h"

namespace dialect {

struct ResultColumn {
    QString name;
    FieldKind kind;
    /// The place of the field in its table, -1 for an aggregate.
    int field;
};

/// A SELECT of the dialect, rewritten for SQLite. Literal n of the statement, counted from 0, is parameter n
/// + 1.
struct SelectPlan {
    QByteArray sql;
    std::vector<ResultColumn> columns;
    /// The table in which changes to the result are written. Null for joins and aggregates, which cannot be
    /// edited. If set, the statement's first column is the row number, before `columns`.
    const TableSpec* editable = nullptr;

    int firstColumn() const { return editable != nullptr ? 1 : 0; }
};

/// Rewrites a whole statement, which must be a single SELECT.
///
/// Knows what the routines' statements use: all fields, some fields or some aggregates of tables joined by
/// commas; conditions joined by AND, OR and brackets, each of which compares a field with a field, a literal
/// or the value of a sub-select.
///
/// Errors: 3075 for a malformed statement, 3061 for an unknown field, 3078 for an unknown table, 3464 for a
/// comparison of different kinds. A sub-select with more than one row is error 3354 once the statement runs.
SelectPlan rewriteSelect(QStringView source, const LexedStatement& statement);

} // namespace dialect
