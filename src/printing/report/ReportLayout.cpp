#include "ReportLayout.h"

#include <algorithm>

namespace {

int rowsIn(int room, int height) { return std::max(1, room / std::max(1, height)); }

int pagesFor(int rows, int perPage) { return (rows + perPage - 1) / perPage; }

} // namespace

ReportLayout::ReportLayout(int rows, int body, const std::array<int, 5>& heights)
    : m_heights(heights)
    , m_body(body)
    , m_rows(rows)
    , m_rowsOnFirst(rowsIn(roomOn(0), heights[Detail]))
    , m_rowsOnOthers(rowsIn(roomOn(1), heights[Detail]))
    , m_pageCount(1 + pagesFor(std::max(0, rows - m_rowsOnFirst), m_rowsOnOthers)) {
    const int last = m_pageCount - 1;
    const int rowsOnLast = rows - firstRowOn(last);
    if (rowsOnLast * heights[Detail] + heights[ReportFooter] <= roomOn(last)) return;
    m_rowsTakenAlong = rowsBesideFooter(rowsOnLast);
    ++m_pageCount;
}

// Rows to move to the footer's page. The page before keeps at least one.
int ReportLayout::rowsBesideFooter(int rowsBefore) const {
    constexpr int wanted = 3;
    const int fitting = (roomOn(1) - m_heights[ReportFooter]) / std::max(1, m_heights[Detail]);
    return std::max(0, std::min({wanted, rowsBefore - 1, fitting}));
}

int ReportLayout::roomOn(int page) const {
    const int once = page == 0 ? m_heights[ReportHeader] : 0;
    return m_body - once - m_heights[PageHeader] - m_heights[PageFooter];
}

int ReportLayout::firstRowOn(int page) const {
    if (page == 0) return 0;
    const int natural = std::min(m_rows, m_rowsOnFirst + (page - 1) * m_rowsOnOthers);
    return page == m_pageCount - 1 ? std::min(natural, m_rows - m_rowsTakenAlong) : natural;
}

QVector<ReportLayout::Strip> ReportLayout::page(int number) const {
    QVector<Strip> strips;
    int top = 0;
    const auto add = [&](Band band, int row = -1, bool isLast = false) {
        strips.append({band, top, row, isLast});
        top += m_heights[band];
    };
    if (number == 0) add(ReportHeader);
    add(PageHeader);
    const int end = firstRowOn(number + 1);
    for (int row = firstRowOn(number); row < end; ++row) add(Detail, row, row == end - 1);
    if (number == m_pageCount - 1) add(ReportFooter);
    top = m_body - m_heights[PageFooter];
    add(PageFooter);
    return strips;
}
