#pragma once

#include "TextPool.h"
#include "Value.h"

#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

/// The source of a report's rows: a record set, a grid, a list in a test.
class ReportRowSource {
public:
    virtual ~ReportRowSource() = default;
    virtual QStringList fields() const = 0;
    /// Writes the next row into `row`, one value for each field in the order of fields(). False after the
    /// last row.
    virtual bool next(std::vector<Value>& row) = 0;
};

/// A copy of all rows of a report: nine bytes a cell, and each text once.
class ReportRows {
public:
    ReportRows() = default; ///< no fields, no rows
    explicit ReportRows(ReportRowSource& source);

    int rowCount() const { return m_rowCount; }
    int fieldCount() const { return static_cast<int>(m_fields.size()); }
    /// The field of this name, regardless of case, also of umlauts; none if there is none.
    std::optional<int> fieldIndex(const QString& name) const;
    Value value(int row, int field) const;
    /// The sum of a field over all rows. Null counts as 0, a text that is a number as that number. None if a
    /// value is no number.
    std::optional<double> sum(int field) const { return m_sums[std::size_t(field)]; }

    std::size_t memoryInUse() const;

private:
    void append(const std::vector<Value>& row);
    void addUp(std::size_t field, const Value& value);

    QStringList m_fields; ///< case-folded
    std::vector<std::optional<double>> m_sums;
    std::vector<Value::Kind> m_kinds;
    std::vector<quint64> m_bits; ///< number, days, or number of the text
    TextPool m_texts;
    int m_rowCount = 0;
};
