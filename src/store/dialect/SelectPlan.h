#pragma once

#include "Schema.h"

#include <QByteArray>
#include <QString>
#include <vector>

namespace dialect {

struct ResultColumn {
    QString name;
    FieldKind kind = FieldKind::Untyped;
    /// The field of the one table of an editable result, -1 for what cannot be written.
    int field = -1;
};

/// A SELECT of the dialect as the database engine understands it. The literal number n of the statement is
/// parameter n + 1.
struct SelectPlan {
    QByteArray sql;
    std::vector<ResultColumn> columns;
    /// The table that the result can be edited in; its row number is then the first column of the statement,
    /// before the result's own. Null for joins and aggregates.
    const TableSpec* editable = nullptr;

    int firstColumn() const { return editable != nullptr ? 1 : 0; }
};

} // namespace dialect
