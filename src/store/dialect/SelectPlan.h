#pragma once

#include "Schema.h"

#include <QByteArray>
#include <QString>
#include <vector>

namespace dialect {

struct ResultColumn {
    QString name;
    FieldKind kind = FieldKind::Untyped;
    /// The place of the field in the table `editable`, -1 if the column cannot be written.
    int field = -1;
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

} // namespace dialect
