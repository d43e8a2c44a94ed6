#include "DataTableRows.h"

#include "Conversions.h"
#include "PackedValue.h"
#include "RuntimeError.h"

#include <algorithm>

namespace {

qint32 numberIn(quint64 word) { return static_cast<qint32>(static_cast<quint32>(word)); }

/// The text of a value; empty for a day outside the calendar, so that painting goes on.
QString shown(const Value& value) {
    try {
        return value.isNull() ? QString() : CStr(value);
    } catch (const RuntimeError&) {
        return {};
    }
}

} // namespace

DataTableRows::Wanted::Wanted(const QString& text, const TextPool& texts)
    : m_texts(texts)
    , m_text(text)
    , m_pooled(texts.find(text)) {
    bool whole = false;
    const qint32 number = text.toInt(&whole);
    if (whole && CStr(number) == text) m_number = number;
}

void DataTableRows::append(std::span<const Value> cells, TextPool& texts) {
    m_rows.push_back(packed(cells, texts));
}

void DataTableRows::insert(int row, std::span<const Value> cells, TextPool& texts) {
    if (row < 0 || row > rowCount()) throw runtimeError(RuntimeError::outOfRange);
    m_rows.insert(m_rows.begin() + row, packed(cells, texts));
}

void DataTableRows::remove(int row) {
    if (row < 0 || row >= rowCount()) throw runtimeError(RuntimeError::outOfRange);
    m_memory.deallocate(m_rows[static_cast<std::size_t>(row)], bytes());
    m_rows.erase(m_rows.begin() + row);
}

void DataTableRows::remove(const std::vector<int>& rows) {
    auto next = rows.begin();
    int row = 0;
    std::erase_if(m_rows, [&](Row held) {
        const bool hit = next != rows.end() && *next == row;
        ++row;
        if (!hit) return false;
        m_memory.deallocate(held, bytes());
        ++next;
        return true;
    });
}

void DataTableRows::reorder(const std::vector<int>& rows) {
    std::vector<Row> ordered;
    ordered.reserve(m_rows.size());
    for (const int row : rows) ordered.push_back(m_rows[static_cast<std::size_t>(row)]);
    m_rows.swap(ordered);
}

void DataTableRows::clear() {
    std::vector<Row>().swap(m_rows);
    m_memory.release();
}

Value DataTableRows::value(int row, int column, const TextPool& texts) const {
    const quint64* cells = rowWith(row, column);
    return unpackedValue(kind(cells, column), cells[column], texts);
}

QString DataTableRows::text(int row, int column, const TextPool& texts) const {
    return shown(value(row, column, texts));
}

void DataTableRows::set(int row, int column, const Value& value, TextPool& texts) {
    rowWith(row, column);
    put(m_rows[static_cast<std::size_t>(row)], column, value, texts);
}

int DataTableRows::find(int column, int first, const Wanted& wanted) const {
    if (column < 0 || column >= columnCount()) throw runtimeError(RuntimeError::outOfRange);
    const auto start = m_rows.begin() + std::clamp(first, 0, rowCount());
    const auto hit = std::find_if(start, m_rows.end(), [&](Row row) { return matches(row, column, wanted); });
    return hit == m_rows.end() ? -1 : static_cast<int>(hit - m_rows.begin());
}

std::size_t DataTableRows::memoryInUse() const {
    return m_rows.capacity() * sizeof(Row) + m_rows.size() * bytes();
}

DataTableRows::Row DataTableRows::packed(std::span<const Value> cells, TextPool& texts) {
    static const Value null;
    const Row row = static_cast<Row>(m_memory.allocate(bytes()));
    for (std::size_t column = 0; column < m_columns; ++column) {
        put(row, static_cast<int>(column), column < cells.size() ? cells[column] : null, texts);
    }
    return row;
}

void DataTableRows::put(quint64* row, int column, const Value& value, TextPool& texts) const {
    row[column] = packedValue(value, texts);
    reinterpret_cast<quint8*>(row + m_columns)[column] = static_cast<quint8>(value.kind());
}

Value::Kind DataTableRows::kind(const quint64* row, int column) const {
    return static_cast<Value::Kind>(reinterpret_cast<const quint8*>(row + m_columns)[column]);
}

bool DataTableRows::matches(const quint64* row, int column, const Wanted& wanted) const {
    const Value::Kind held = kind(row, column);
    if (held == Value::Kind::Text) return wanted.m_pooled == static_cast<quint32>(row[column]);
    if (held == Value::Kind::Long) return wanted.m_number == numberIn(row[column]);
    return shown(unpackedValue(held, row[column], wanted.m_texts)) == wanted.m_text;
}

const quint64* DataTableRows::rowWith(int row, int column) const {
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
        throw runtimeError(RuntimeError::outOfRange);
    return m_rows[static_cast<std::size_t>(row)];
}
