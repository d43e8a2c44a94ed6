#include "DataTableRows.h"

#include "Conversions.h"
#include "PackedValue.h"
#include "RuntimeError.h"

#include <algorithm>

namespace {

QString shown(const Value& value) {
    try {
        return value.isNull() ? QString() : CStr(value);
    } catch (const RuntimeError&) {
        return {};
    }
}

} // namespace

void DataTableRows::insert(int row, std::span<const Value> cells) {
    if (row < 0 || row > rowCount()) throw runtimeError(RuntimeError::outOfRange);
    static const Value null;
    const Row made = static_cast<Row>(m_memory.allocate(bytes()));
    for (std::size_t column = 0; column < m_columns; ++column)
        put(made, static_cast<int>(column), column < cells.size() ? cells[column] : null);
    m_rows.insert(m_rows.begin() + row, made);
}

void DataTableRows::remove(int row) {
    if (row < 0 || row >= rowCount()) throw runtimeError(RuntimeError::outOfRange);
    m_memory.deallocate(m_rows[static_cast<std::size_t>(row)], bytes());
    m_rows.erase(m_rows.begin() + row);
}

void DataTableRows::clear() {
    std::vector<Row>().swap(m_rows);
    m_memory.release();
    m_texts.clear();
}

void DataTableRows::reorder(const std::vector<int>& rows) {
    std::vector<Row> ordered;
    ordered.reserve(rows.size());
    for (const int row : rows)
        ordered.push_back(std::exchange(m_rows[static_cast<std::size_t>(row)], nullptr));
    for (const Row gone : m_rows)
        if (gone) m_memory.deallocate(gone, bytes());
    m_rows.swap(ordered);
}

Value DataTableRows::value(int row, int column) const {
    const Row cells = rowWith(row, column);
    return unpackedValue(kind(cells, column), cells[column], m_texts);
}

QString DataTableRows::text(int row, int column) const { return shown(value(row, column)); }

void DataTableRows::set(int row, int column, const Value& value) { put(rowWith(row, column), column, value); }

int DataTableRows::find(int column, int first, const QString& text) const {
    if (column < 0 || column >= static_cast<int>(m_columns)) throw runtimeError(RuntimeError::outOfRange);
    // Cells with texts and whole numbers are compared as numbers, which spares making their texts.
    const std::optional<quint32> pooled = m_texts.find(text);
    bool whole = false;
    const qint32 number = text.toInt(&whole);
    whole = whole && CStr(number) == text;
    const auto matches = [&](Row row) {
        const Value::Kind held = kind(row, column);
        const auto word = static_cast<quint32>(row[column]);
        if (held == Value::Kind::Text) return pooled == word;
        if (held == Value::Kind::Long) return whole && static_cast<qint32>(word) == number;
        return shown(unpackedValue(held, row[column], m_texts)) == text;
    };
    const auto start = m_rows.begin() + std::clamp(first, 0, rowCount());
    const auto hit = std::find_if(start, m_rows.end(), matches);
    return hit == m_rows.end() ? -1 : static_cast<int>(hit - m_rows.begin());
}

Value::Kind DataTableRows::kind(Row row, int column) const {
    return static_cast<Value::Kind>(reinterpret_cast<const quint8*>(row + m_columns)[column]);
}

void DataTableRows::put(Row row, int column, const Value& value) {
    row[column] = packedValue(value, m_texts);
    reinterpret_cast<quint8*>(row + m_columns)[column] = static_cast<quint8>(value.kind());
}

DataTableRows::Row DataTableRows::rowWith(int row, int column) const {
    if (row < 0 || row >= rowCount() || column < 0 || column >= static_cast<int>(m_columns))
        throw runtimeError(RuntimeError::outOfRange);
    return m_rows[static_cast<std::size_t>(row)];
}
