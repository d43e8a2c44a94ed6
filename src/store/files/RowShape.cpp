#include "RowShape.h"

#include <array>

namespace {

using Stored = engine::Statement::Stored;

constexpr auto catalogueFields = std::to_array<FieldSpec>({
    {u"type", FieldKind::Text},
    {u"name", FieldKind::Text},
    {u"tbl_name", FieldKind::Text},
    {u"rootpage", FieldKind::Long},
    {u"sql", FieldKind::Text},
});
constexpr auto counterFields = std::to_array<FieldSpec>({
    {u"name", FieldKind::Text},
    {u"seq", FieldKind::Long},
});
constexpr TableSpec catalogue{u"sqlite_master", catalogueFields, false};
constexpr TableSpec counters{u"sqlite_sequence", counterFields, false};

int fieldsOf(const engine::Statement& row) {
    int count = 0;
    while (count + 1 < row.columnCount() && row.stored(count + 1) != Stored::Other) ++count;
    return count;
}

Stored expected(FieldKind kind) { return kind == FieldKind::Text ? Stored::Text : Stored::Number; }

/// The number of fields that are stored as expected, -1 if the row can't belong to the table.
int likeness(const engine::Statement& row, int fields, const TableSpec& table) {
    // A keyed table stores its key only as the row number, so the key's field is Null.
    const bool hasKeyElsewhere = row.stored(1) == Stored::Null;
    if (fields != static_cast<int>(table.fields.size()) || hasKeyElsewhere != table.keyed) return -1;
    int alike = 0;
    for (int i = 0; i < fields; ++i)
        if (row.stored(i + 1) == expected(table.fields[static_cast<size_t>(i)].kind)) ++alike;
    return alike;
}

} // namespace

const TableSpec& catalogueTable() { return catalogue; }
const TableSpec& countersTable() { return counters; }

std::vector<const TableSpec*> tablesOfRow(const engine::Statement& row) {
    const int fields = fieldsOf(row);
    std::vector<const TableSpec*> best;
    int most = 0;
    const auto consider = [&](const TableSpec& table) {
        const int alike = likeness(row, fields, table);
        if (alike < most) return;
        if (alike > most) best.clear();
        most = alike;
        best.push_back(&table);
    };
    for (const TableSpec& table : schemaTables()) consider(table);
    consider(catalogue);
    consider(counters);
    return best;
}
