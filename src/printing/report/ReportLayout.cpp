#include "ReportLayout.h"

#include <algorithm>

namespace {

int rowsIn(int room, int height) { return std::max(1, room / std::max(1, height)); }

int pagesFor(int rows, int perPage) { return (rows + perPage - 1) / perPage; }

} // namespace

ReportLayout::ReportLayout(int rows, const ReportHeights& heights)
    : m_heights(heights)
    , m_rows(rows)
    , m_rowsOnFirst(rowsIn(roomOn(0), heights.detail))
    , m_rowsOnOthers(rowsIn(roomOn(1), heights.detail))
    , m_pageCount(1 + pagesFor(std::max(0, rows - m_rowsOnFirst), m_rowsOnOthers)) {
    const int last = m_pageCount - 1;
    const int rowsOnLast = rows - firstRowOn(last);
    if (rowsOnLast * heights.detail + heights.reportFooter <= roomOn(last)) return;
    m_rowsTakenAlong = rowsBesideFooter(rowsOnLast);
    ++m_pageCount;
}

// Rows to move to the footer's page. The page before keeps at least one.
int ReportLayout::rowsBesideFooter(int rowsBefore) const {
    constexpr int wanted = 3;
    const int fitting = (roomOn(1) - m_heights.reportFooter) / std::max(1, m_heights.detail);
    return std::max(0, std::min({wanted, rowsBefore - 1, fitting}));
}

int ReportLayout::roomOn(int page) const {
    const int once = page == 0 ? m_heights.reportHeader : 0;
    return m_heights.body - once - m_heights.pageHeader - m_heights.pageFooter;
}

int ReportLayout::firstRowOn(int page) const {
    if (page == 0) return 0;
    const int natural = std::min(m_rows, m_rowsOnFirst + (page - 1) * m_rowsOnOthers);
    return page == m_pageCount - 1 ? std::min(natural, m_rows - m_rowsTakenAlong) : natural;
}

ReportPage ReportLayout::page(int number) const {
    const int at = std::clamp(number, 0, m_pageCount - 1);
    ReportPage page;
    page.firstRow = firstRowOn(at);
    page.rowCount = firstRowOn(at + 1) - page.firstRow;
    page.hasReportHeader = at == 0;
    page.hasReportFooter = at == m_pageCount - 1;
    page.pageHeaderTop = page.hasReportHeader ? m_heights.reportHeader : 0;
    page.detailTop = page.pageHeaderTop + m_heights.pageHeader;
    page.reportFooterTop = page.detailTop + page.rowCount * m_heights.detail;
    page.pageFooterTop = m_heights.body - m_heights.pageFooter;
    return page;
}
