#pragma once

#include <QtGlobal>
#include <memory>
#include <vector>

/// The memory of a table's rows, which are all of one size: taken in blocks that grow with the table, since a
/// list of thousands would spend more on single allocations than on its cells. The place of a removed row is
/// used again for the next one.
class DataTableBlocks {
public:
    /// The size of a row in words of eight bytes.
    explicit DataTableBlocks(std::size_t words)
        : m_words(words) {}

    /// Room for a row, its contents undefined; valid until it is given back or all are dropped.
    quint64* take();
    void giveBack(quint64* row) { m_free.push_back(row); }
    void clear();
    std::size_t memoryInUse() const;

private:
    std::size_t m_words;
    std::vector<std::unique_ptr<quint64[]>> m_blocks;
    std::size_t m_rowsInBlocks = 0;
    std::size_t m_rowsInLast = 0; ///< so many rows has the last block
    std::size_t m_untouched = 0;  ///< so many of them have never been taken
    std::vector<quint64*> m_free;
};
