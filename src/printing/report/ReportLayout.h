#pragma once

/// Heights of the sections, all in the same unit. `body` is the height between the paper's margins.
struct ReportHeights {
    int body = 0;
    int reportHeader = 0;
    int pageHeader = 0;
    int detail = 0;
    int pageFooter = 0;
    int reportFooter = 0;
};

/// The rows and sections of a page; tops are measured from the top of the body. The tops of report header and
/// footer mean something only if the page has them.
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

/// Distributes rows over pages. By arithmetic only, so a hundred thousand rows take no longer than ten. A
/// report without rows has one page. A report footer that needs a page of its own takes the last rows with
/// it, so that no page has an empty table.
class ReportLayout {
public:
    ReportLayout(int rows, const ReportHeights& heights);

    int pageCount() const { return m_pageCount; }
    /// Pages count from 0. A number beyond the ends gives the nearest page.
    ReportPage page(int number) const;

private:
    int roomOn(int page) const;
    int firstRowOn(int page) const;
    int rowsBesideFooter(int rowsBefore) const;

    ReportHeights m_heights;
    int m_rows;
    int m_rowsOnFirst; ///< at least one, so that every row gets a page
    int m_rowsOnOthers;
    int m_pageCount;
    int m_rowsTakenAlong = 0; ///< rows beside a report footer on a page of its own
};
