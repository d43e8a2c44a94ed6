#include "ReportLayout.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

// Space for ten rows on a page, for eight on the first.
constexpr int body = 160;
constexpr std::array heights{20, 40, 10, 20, 30};

qsizetype rowsOn(const ReportLayout& layout, int page) {
    const auto strips = layout.page(page);
    return std::ranges::count(strips, ReportLayout::Detail, &ReportLayout::Strip::band);
}

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
        const ReportLayout layout(c.rows, body, heights);
        EXPECT_EQ(layout.pageCount(), c.pages) << c.why;
        EXPECT_EQ(rowsOn(layout, c.pages - 1), c.rowsOnLast) << c.why;
    }
}

TEST(ReportLayoutTest, EveryRowStandsOnOnePageInItsOrderBetweenHeadAndFoot) {
    const int rows = 1234;
    const ReportLayout layout(rows, body, heights);
    int next = 0;
    for (int number = 0; number < layout.pageCount(); ++number) {
        const bool isLast = number == layout.pageCount() - 1;
        const qsizetype end = next + rowsOn(layout, number);
        QVector<ReportLayout::Band> others;
        int top = 0;
        for (const ReportLayout::Strip& strip : layout.page(number)) {
            const bool isFoot = strip.band == ReportLayout::PageFooter;
            EXPECT_EQ(strip.top, isFoot ? 140 : top);
            EXPECT_LE(top, isFoot ? 140 : 130);
            top += heights[strip.band];
            if (strip.band != ReportLayout::Detail) {
                others.append(strip.band);
                continue;
            }
            EXPECT_EQ(strip.row, next++);
            EXPECT_EQ(strip.isLast, next == end);
        }
        EXPECT_EQ(others.contains(ReportLayout::ReportHeader), number == 0);
        EXPECT_EQ(others.contains(ReportLayout::ReportFooter), isLast);
        EXPECT_EQ(others.size(), 2 + (number == 0 ? 1 : 0) + (isLast ? 1 : 0));
    }
    EXPECT_EQ(next, rows);
}

TEST(ReportLayoutTest, ARowTooHighForThePageStillGetsOne) {
    const ReportLayout layout(3, body, {20, 40, 500, 20, 30});
    EXPECT_EQ(layout.pageCount(), 4) << "three pages with a row and one with the footer";
    EXPECT_EQ(rowsOn(layout, 2), 1);
}

} // namespace
