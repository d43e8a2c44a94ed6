#include "ReportLayout.h"

#include <gtest/gtest.h>

namespace {

// Space for ten rows on a page, for eight on the first.
constexpr ReportHeights heights{
    .body = 160, .reportHeader = 20, .pageHeader = 40, .detail = 10, .pageFooter = 20, .reportFooter = 30};

TEST(ReportLayoutTest, RowsFillThePagesAndTheReportFooterTakesSomeAlongToAPageOfItsOwn) {
    struct Case {
        int rows;
        int pages;
        int rowsOnLast;
        const char* why;
    };
    for (const Case& c :
         {Case{0, 1, 0, "no rows"}, Case{1, 1, 1, "one row"}, Case{5, 1, 5, "the footer just fits below"},
          Case{6, 2, 3, "the footer no longer fits"}, Case{8, 2, 3, "a full page"}, Case{9, 2, 1, "one more"},
          Case{15, 2, 7, "the footer just fits on the second page"}, Case{16, 3, 3, "not quite"},
          Case{18, 3, 3, "two full pages"}, Case{19, 3, 1, "and one more"},
          Case{100000, 10001, 2, "very many"}}) {
        const ReportLayout layout(c.rows, heights);
        EXPECT_EQ(layout.pageCount(), c.pages) << c.why;
        EXPECT_EQ(layout.page(c.pages - 1).rowCount, c.rowsOnLast) << c.why;
    }
}

TEST(ReportLayoutTest, EveryRowStandsOnOnePageInItsOrderBetweenHeadAndFoot) {
    const int rows = 1234;
    const ReportLayout layout(rows, heights);
    int next = 0;
    for (int number = 0; number < layout.pageCount(); ++number) {
        const ReportPage page = layout.page(number);
        EXPECT_EQ(page.firstRow, next);
        EXPECT_EQ(page.hasReportHeader, number == 0);
        EXPECT_EQ(page.hasReportFooter, number == layout.pageCount() - 1);
        EXPECT_EQ(page.pageHeaderTop, number == 0 ? 20 : 0);
        EXPECT_EQ(page.detailTop, page.pageHeaderTop + 40);
        EXPECT_EQ(page.reportFooterTop, page.detailTop + 10 * page.rowCount);
        EXPECT_LE(page.reportFooterTop + (page.hasReportFooter ? 30 : 0), page.pageFooterTop);
        EXPECT_EQ(page.pageFooterTop, 140);
        next += page.rowCount;
    }
    EXPECT_EQ(next, rows);
    EXPECT_EQ(layout.page(-5).firstRow, 0);
    EXPECT_EQ(layout.page(99999).firstRow, layout.page(layout.pageCount() - 1).firstRow);
}

TEST(ReportLayoutTest, ARowTooHighForThePageStillGetsOne) {
    ReportHeights high = heights;
    high.detail = 500;
    const ReportLayout layout(3, high);
    EXPECT_EQ(layout.pageCount(), 4) << "three pages with a row and one with the footer";
    EXPECT_EQ(layout.page(2).firstRow, 2);
}

} // namespace
