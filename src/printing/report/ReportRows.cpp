#include "ReportRows.h"

#include "Conversions.h"
#include "PackedValue.h"
#include "RuntimeError.h"

namespace {

std::optional<double> numberIn(const Value& value) {
    try {
        return CDbl(value);
    } catch (const RuntimeError&) {
        return std::nullopt; // no number, so the field has no sum
    }
}

} // namespace

ReportRows::ReportRows(ReportRowSource& source) {
    for (const QString& field : source.fields()) m_fields.append(field.toCaseFolded());
    m_sums.assign(std::size_t(m_fields.size()), 0.0);
    std::vector<Value> row(std::size_t(m_fields.size()));
    while (source.next(row)) append(row);
    m_kinds.shrink_to_fit();
    m_bits.shrink_to_fit();
}

void ReportRows::append(const std::vector<Value>& row) {
    const std::size_t fields = std::size_t(m_fields.size());
    for (std::size_t field = 0; field < fields; ++field) {
        const Value value = field < row.size() ? row[field] : Value();
        m_kinds.push_back(value.kind());
        m_bits.push_back(packedValue(value, m_texts));
        if (m_sums[field]) addUp(field, value);
    }
    ++m_rowCount;
}

// Adds up while the rows are copied, so that a report with many rows opens as quickly as one with few.
void ReportRows::addUp(std::size_t field, const Value& value) {
    if (value.isNull()) return;
    const std::optional<double> number = numberIn(value);
    if (number)
        *m_sums[field] += *number;
    else
        m_sums[field].reset();
}

std::optional<int> ReportRows::fieldIndex(const QString& name) const {
    const qsizetype found = m_fields.indexOf(name.toCaseFolded());
    if (found < 0) return std::nullopt;
    return static_cast<int>(found);
}

Value ReportRows::value(int row, int field) const {
    const std::size_t cell = std::size_t(row) * std::size_t(m_fields.size()) + std::size_t(field);
    return unpackedValue(m_kinds[cell], m_bits[cell], m_texts);
}

std::size_t ReportRows::memoryInUse() const {
    return m_bits.capacity() * sizeof(quint64) + m_kinds.capacity() * sizeof(Value::Kind) +
           m_texts.memoryInUse();
}
