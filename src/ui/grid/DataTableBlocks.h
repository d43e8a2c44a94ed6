#pragma once

#include <QtGlobal>
#include <memory>
#include <vector>

/// The memory of a table's rows, which are all of one size. Allocates blocks that grow with the table: for
/// thousands of rows single allocations would cost more than the cells. Reuses the place of a removed row.
class DataTableBlocks {
public:
    /// `words` is the size of a row in words of eight bytes.
    explicit DataTableBlocks(std::size_t words)
        : m_words(words) {}

    /// Memory for one row, not initialised. Valid until giveBack() or clear().
    quint64* take();
    void giveBack(quint64* row) { m_free.push_back(row); }
    void clear();
    std::size_t memoryInUse() const;

private:
    std::size_t m_words;
    std::vector<std::unique_ptr<quint64[]>> m_blocks;
    std::size_t m_rowsInBlocks = 0;
    std::size_t m_rowsInLast = 0; ///< the size of the last block in rows
    std::size_t m_untouched = 0;  ///< rows of the last block never taken so far
    std::vector<quint64*> m_free;
};
