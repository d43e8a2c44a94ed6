#include "DataTableBlocks.h"

#include <algorithm>

namespace {

// Small, since most tables of a grid are small, and even a large one should not take much more than it holds.
constexpr std::size_t firstRows = 4;
constexpr std::size_t mostRows = 1024;

} // namespace

quint64* DataTableBlocks::take() {
    if (!m_free.empty()) {
        quint64* row = m_free.back();
        m_free.pop_back();
        return row;
    }
    if (m_untouched == 0) {
        m_rowsInLast = std::clamp(m_rowsInLast * 2, firstRows, mostRows);
        m_blocks.push_back(std::make_unique_for_overwrite<quint64[]>(m_rowsInLast * m_words));
        m_rowsInBlocks += m_rowsInLast;
        m_untouched = m_rowsInLast;
    }
    return m_blocks.back().get() + (m_rowsInLast - m_untouched--) * m_words;
}

void DataTableBlocks::clear() { *this = DataTableBlocks(m_words); }

std::size_t DataTableBlocks::memoryInUse() const {
    return m_rowsInBlocks * m_words * sizeof(quint64) + m_blocks.capacity() * sizeof(m_blocks.front()) +
           m_free.capacity() * sizeof(quint64*);
}
