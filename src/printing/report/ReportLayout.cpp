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
    , m_pagesWithRows(1 + pagesFor(std::max(0, rows - m_rowsOnFirst), m_rowsOnOthers))
    , m_pageCount(m_pagesWithRows) {
    const int last = m_pagesWithRows - 1;
    const int used = (rows - firstRowOn(last)) * heights.detail;
    if (used + heights.reportFooter > roomOn(last)) ++m_pageCount;
}

int ReportLayout::roomOn(int page) const {
    const int once = page == 0 ? m_heights.reportHeader : 0;
    return m_heights.body - once - m_heights.pageHeader - m_heights.pageFooter;
}

int ReportLayout::firstRowOn(int page) const {
    return page == 0 ? 0 : std::min(m_rows, m_rowsOnFirst + (page - 1) * m_rowsOnOthers);
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
