#pragma once

#include "TextPool.h"
#include "Value.h"

#include <memory_resource>
#include <span>

/// The rows of one table of a grid, without the view. Kept small: nine bytes a cell and a pointer a row;
/// equal texts are held once. Inserting and removing moves pointers only. Error 9 if there is no such row or
/// column.
class DataTableRows {
public:
    explicit DataTableRows(int columns)
        : m_columns(static_cast<std::size_t>(columns)) {}

    int rowCount() const { return static_cast<int>(m_rows.size()); }

    /// Missing cells become Null; cells beyond the columns are dropped.
    void insert(int row, std::span<const Value> cells);
    void remove(int row);
    void clear();
    /// For each place the row that comes there. Rows that come nowhere are removed.
    void reorder(const std::vector<int>& rows);

    Value value(int row, int column) const;
    /// The cell's text as shown; empty for a day outside the calendar, so that painting goes on.
    QString text(int row, int column) const;
    void set(int row, int column, const Value& value);
    /// The first row from `first` on that has the text in the column, or -1.
    int find(int column, int first, const QString& text) const;

private:
    /// The cells' contents, a word each, followed by their kinds, a byte each.
    using Row = quint64*;

    std::size_t bytes() const { return (m_columns + (m_columns + 7) / sizeof(quint64)) * sizeof(quint64); }
    Value::Kind kind(Row row, int column) const;
    void put(Row row, int column, const Value& value);
    Row rowWith(int row, int column) const;

    std::size_t m_columns;
    TextPool m_texts; ///< one per table, so that a category opened again frees its old texts
    /// In blocks of rows, since a list of thousands would spend more on single allocations than on its cells.
    std::pmr::unsynchronized_pool_resource m_memory{{.max_blocks_per_chunk = 1024}};
    std::vector<Row> m_rows;
};
