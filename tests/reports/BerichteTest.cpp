#include "Berichte.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using namespace Berichte;
using Align = ReportLook::Align;

/// True if a bold head has the column's place, width and alignment.
bool hasHead(Report& report, const ReportControl& column) {
    for (const ReportControl& head : report.section(u"Section2"_s).controls)
        if (head.place.left() == column.place.left() && head.place.width() == column.place.width() &&
            head.look.align == column.look.align && head.look.bold)
            return true;
    return false;
}

TEST(BerichteTest, EachColumnStandsBelowItsHeadAndBesideTheNextOne) {
    for (const auto make : {rpt_Fangliste, rpt_MitglList, rpt_ArbStd, rpt_ArbListe, rpt_BesatzListe}) {
        const Bericht report = make();
        SCOPED_TRACE(qPrintable(report->caption()));
        int columns = 0;
        int end = 0;
        for (const ReportControl& text : report->section(u"Section1"_s).controls) {
            if (text.kind != ReportControl::Kind::Text) continue;
            EXPECT_TRUE(hasHead(*report, text)) << qPrintable(text.name);
            EXPECT_GT(text.place.left(), end);
            end = text.place.right();
            // The first column is the record's number, right-aligned like all numbers.
            EXPECT_TRUE(columns++ > 0 || text.look.align == Align::Right);
        }
        EXPECT_GE(columns, 3);
    }
}

} // namespace
