#include "SavedRows.h"

namespace {

/// A keyed table's key is the row number, not a field of the row.
size_t firstField(const TableSpec& table) { return table.keyed ? 1 : 0; }

QByteArray insertSql(const TableSpec& table) {
    QByteArrayList names = {"rowid"};
    QByteArrayList values = {"?1"};
    for (size_t i = firstField(table); i < table.fields.size(); ++i) {
        names += quotedName(table.fields[i].name);
        values += '?' + QByteArray::number(names.size());
    }
    return "INSERT OR IGNORE INTO " + quotedName(table.name) + " (" + names.join(", ") + ") VALUES (" +
           values.join(", ") + ')';
}

QByteArray numberSql(const TableSpec& table) {
    return "SELECT 1 FROM " + quotedName(table.name) + " WHERE rowid = ?1";
}

QByteArray sameSql(const TableSpec& table) {
    QByteArray sql = numberSql(table);
    int position = 1;
    for (size_t i = firstField(table); i < table.fields.size(); ++i)
        sql += " AND " + quotedName(table.fields[i].name) + " IS ?" + QByteArray::number(++position);
    return sql;
}

void bindRow(engine::Statement& statement, const TableSpec& table, const engine::Statement& row) {
    statement.bindColumn(1, row, 0);
    int position = 1;
    for (size_t i = firstField(table); i < table.fields.size(); ++i)
        statement.bindColumn(++position, row, static_cast<int>(i) + 1);
}

bool finds(engine::Statement& statement) {
    const bool found = statement.step();
    statement.reset();
    return found;
}

} // namespace

SavedRows::Statements& SavedRows::of(const TableSpec& table) {
    const auto [place, isNew] = m_statements.try_emplace(&table);
    if (isNew)
        place->second = {m_target.prepare(insertSql(table)), m_target.prepare(sameSql(table)),
                         m_target.prepare(numberSql(table))};
    return place->second;
}

bool SavedRows::add(const TableSpec& table, const engine::Statement& row) {
    engine::Statement& insert = of(table).insert;
    bindRow(insert, table, row);
    insert.run();
    m_count += m_target.changes();
    return m_target.changes() > 0;
}

bool SavedRows::holds(const TableSpec& table, const engine::Statement& row) {
    engine::Statement& same = of(table).same;
    bindRow(same, table, row);
    return finds(same);
}

bool SavedRows::hasNumber(const TableSpec& table, const engine::Statement& row) {
    engine::Statement& number = of(table).number;
    number.bindColumn(1, row, 0);
    return finds(number);
}
