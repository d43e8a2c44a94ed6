#pragma once

#include "TextPool.h"
#include "Value.h"

#include <memory_resource>
#include <span>

/// The rows of one table of a grid, without the view. Kept small: nine bytes a cell and a pointer a row;
/// texts are in the pool that each call takes. Inserting and removing moves pointers only. Error 9 if there
/// is no such row or column.
class DataTableRows {
public:
    /// A text to find, prepared once, so that cells with texts and whole numbers are compared as numbers.
    class Wanted {
    public:
        Wanted(const QString& text, const TextPool& texts);

    private:
        friend class DataTableRows;
        const TextPool& m_texts;
        QString m_text;
        std::optional<quint32> m_pooled;
        std::optional<qint32> m_number;
    };

    explicit DataTableRows(int columns)
        : m_columns(static_cast<std::size_t>(columns)) {}

    int rowCount() const { return static_cast<int>(m_rows.size()); }
    int columnCount() const { return static_cast<int>(m_columns); }

    /// Missing cells become Null; cells beyond the columns are dropped.
    void append(std::span<const Value> cells, TextPool& texts);
    void insert(int row, std::span<const Value> cells, TextPool& texts);
    void remove(int row);
    /// Removes these rows in one pass. They must be sorted.
    void remove(const std::vector<int>& rows);
    void clear();
    /// For each place the row that comes there.
    void reorder(const std::vector<int>& rows);

    Value value(int row, int column, const TextPool& texts) const;
    /// The cell's text as shown.
    QString text(int row, int column, const TextPool& texts) const;
    void set(int row, int column, const Value& value, TextPool& texts);

    /// The first row from `first` on that has the text in the column, or -1.
    int find(int column, int first, const Wanted& wanted) const;

    std::size_t memoryInUse() const;

private:
    /// The cells' contents, a word each, followed by their kinds, a byte each.
    using Row = quint64*;

    std::size_t bytes() const { return (m_columns + (m_columns + 7) / sizeof(quint64)) * sizeof(quint64); }
    Row packed(std::span<const Value> cells, TextPool& texts);
    void put(quint64* row, int column, const Value& value, TextPool& texts) const;
    Value::Kind kind(const quint64* row, int column) const;
    bool matches(const quint64* row, int column, const Wanted& wanted) const;
    const quint64* rowWith(int row, int column) const;

    std::size_t m_columns;
    /// In blocks of rows, since a list of thousands would spend more on single allocations than on its cells.
    std::pmr::unsynchronized_pool_resource m_memory{{.max_blocks_per_chunk = 1024}};
    std::vector<Row> m_rows;
};
