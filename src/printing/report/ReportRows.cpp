#include "ReportRows.h"

#include "Conversions.h"
#include "PackedValue.h"
#include "RuntimeError.h"

ReportRows::ReportRows(const QStringList& fields)
    : m_sums(std::size_t(fields.size()), 0.0) {
    for (const QString& field : fields) m_fields.append(field.toCaseFolded());
}

void ReportRows::append(const std::vector<Value>& row) {
    for (std::size_t field = 0; field < m_sums.size(); ++field) {
        m_kinds.push_back(row[field].kind());
        m_bits.push_back(packedValue(row[field], m_texts));
        addUp(field, row[field]);
    }
    ++m_rowCount;
}

// Adds up while the rows are copied, so that a report with many rows opens as quickly as one with few.
void ReportRows::addUp(std::size_t field, const Value& value) {
    std::optional<double>& sum = m_sums[field];
    if (!sum || value.isNull()) return;
    try {
        *sum += CDbl(value);
    } catch (const RuntimeError&) {
        sum.reset(); // no number, so the field has no sum
    }
}

int ReportRows::fieldIndex(const QString& name) const {
    return static_cast<int>(m_fields.indexOf(name.toCaseFolded()));
}

Value ReportRows::value(int row, int field) const {
    const std::size_t cell = std::size_t(row) * std::size_t(m_fields.size()) + std::size_t(field);
    return unpackedValue(m_kinds[cell], m_bits[cell], m_texts);
}
