#pragma once

#include <QVector>
#include <array>

/// Distributes rows over pages. By arithmetic only, so a hundred thousand rows take no longer than ten. A
/// report without rows has one page. A report footer that needs a page of its own takes the last rows with
/// it, so that no page has an empty table.
class ReportLayout {
public:
    /// The sections, in the order of printing.
    enum Band { ReportHeader, PageHeader, Detail, PageFooter, ReportFooter };
    /// A section at its place on a page.
    struct Strip {
        Band band;
        int top;             ///< from the top of the body
        int row = -1;        ///< in the detail section
        bool isLast = false; ///< the last row of its page
    };

    /// `body` is the height between the paper's margins, in the same unit as the heights of the sections.
    ReportLayout(int rows, int body, const std::array<int, 5>& heights);

    int pageCount() const { return m_pageCount; }
    /// What stands on a page; pages count from 0.
    QVector<Strip> page(int number) const;

private:
    int roomOn(int page) const;
    int firstRowOn(int page) const;
    int rowsBesideFooter(int rowsBefore) const;

    std::array<int, 5> m_heights; ///< by Band
    int m_body;
    int m_rows;
    int m_rowsOnFirst; ///< at least one, so that every row gets a page
    int m_rowsOnOthers;
    int m_pageCount;
    int m_rowsTakenAlong = 0; ///< rows beside a report footer on a page of its own
};
