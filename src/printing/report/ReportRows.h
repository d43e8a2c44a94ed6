#pragma once

#include "TextPool.h"
#include "Value.h"

#include <QStringList>
#include <optional>
#include <vector>

/// A copy of all rows of a report: nine bytes a cell, and each text once.
class ReportRows {
public:
    explicit ReportRows(const QStringList& fields = {});
    /// Adds a row, one value for each field in the order of the fields.
    void append(const std::vector<Value>& row);

    int rowCount() const { return m_rowCount; }
    /// The field of this name, regardless of case, also of umlauts; -1 if there is none.
    int fieldIndex(const QString& name) const;
    Value value(int row, int field) const;
    /// The sum of a field over all rows. Null counts as 0, a text that is a number as that number. None if a
    /// value is no number.
    std::optional<double> sum(int field) const { return m_sums[std::size_t(field)]; }

private:
    void addUp(std::size_t field, const Value& value);

    QStringList m_fields; ///< case-folded
    std::vector<std::optional<double>> m_sums;
    std::vector<Value::Kind> m_kinds;
    std::vector<quint64> m_bits; ///< number, days, or number of the text
    TextPool m_texts;
    int m_rowCount = 0;
};
