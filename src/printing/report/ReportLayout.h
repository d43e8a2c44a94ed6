#pragma once

/// Heights in any unit, all in the same; `body` is what the paper's margins leave.
struct ReportHeights {
    int body = 0;
    int reportHeader = 0;
    int pageHeader = 0;
    int detail = 0;
    int pageFooter = 0;
    int reportFooter = 0;
};

/// What stands where on a page, from the top of the body. Sections that are not there have no place: ask
/// first whether they are.
struct ReportPage {
    int firstRow = 0;
    int rowCount = 0;
    bool hasReportHeader = false; ///< at the top, above the page header
    bool hasReportFooter = false; ///< below the last row
    int pageHeaderTop = 0;
    int detailTop = 0;
    int reportFooterTop = 0;
    int pageFooterTop = 0;
};

/// Which rows stand on which page: arithmetic only, the same for ten rows as for a hundred thousand. A report
/// without rows has one page. A report footer that needs a page of its own takes the last rows along, so that
/// no page has an empty table.
class ReportLayout {
public:
    ReportLayout(int rows, const ReportHeights& heights);

    int pageCount() const { return m_pageCount; }
    /// From 0; beyond the ends the nearest one.
    ReportPage page(int number) const;

private:
    int roomOn(int page) const;
    int firstRowOn(int page) const;
    int rowsBesideFooter(int rowsBefore) const;

    ReportHeights m_heights;
    int m_rows;
    int m_rowsOnFirst; ///< at least one, so that every row finds its page
    int m_rowsOnOthers;
    int m_pageCount;
    int m_rowsTakenAlong = 0; ///< by a report footer on a page of its own
};
