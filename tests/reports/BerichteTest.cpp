#include "Berichte.h"
#include "Report.h"

#include <gtest/gtest.h>

namespace {

class BerichteTest : public ::testing::TestWithParam<Berichte::Bericht (*)()> {};

TEST_P(BerichteTest, EachColumnStandsBelowItsHeadAndBesideTheNextOne) {
    const Berichte::Bericht made = GetParam()();
    Report& report = *made;
    const auto& heads = report.section(u"Section2"_qs).controls();
    int columns = 0;
    int end = 0;
    for (const ReportControl& text : report.section(u"Section1"_qs).controls()) {
        if (text.kind() != ReportControl::Kind::Text) continue;
        const auto stands = [&](const ReportControl& head) {
            return head.place().left() == text.place().left() &&
                   head.place().width() == text.place().width() && head.align() == text.align() &&
                   head.isBold();
        };
        EXPECT_TRUE(std::any_of(heads.begin(), heads.end(), stands)) << qPrintable(text.name());
        EXPECT_GT(text.place().left(), end);
        end = text.place().right();
        // The first column is the record's number, right-aligned like all numbers.
        EXPECT_TRUE(columns++ > 0 || text.align() == ReportControl::Align::Right);
    }
    EXPECT_GE(columns, 3);
}

INSTANTIATE_TEST_SUITE_P(AllFive, BerichteTest,
                         ::testing::Values(&Berichte::rpt_Fangliste, &Berichte::rpt_MitglList,
                                           &Berichte::rpt_ArbStd, &Berichte::rpt_ArbListe,
                                           &Berichte::rpt_BesatzListe));

} // namespace
