#include "ReportDocument.h"
#include "ErrorOf.h"
#include "FixedClock.h"
#include "ReportAsText.h"
#include "ReportSample.h"

#include <gtest/gtest.h>

namespace {

class ReportDocumentTest : public ::testing::Test {
protected:
    QStringList text() const { return reportAsText(*report.document()); }

    FixedClock clock;
    SampleReport report;
};

TEST_F(ReportDocumentTest, ItSaysHeadRowsSumAndPageNumberInThisOrder) {
    RowList rows({u"NR"_qs, u"gewässer"_qs, u"gewicht"_qs},
                 {{Value(1), Value(u"Spree"), Value(1200000)}, {Value(2), Value(u"Dahme"), Value(34567)}});
    report.bind(rows);
    EXPECT_EQ(text(), (QStringList{u"Section2.lblOrt = Erkner"_qs, u"1|Spree|1.200.000"_qs,
                                   u"2|Dahme|34.567"_qs, u"Section5.SumGewicht = 1.234.567"_qs,
                                   u"Section3.Label9 = Seite 1 von 1 (gedruckt am 14.03.2026)"_qs}));
}

TEST_F(ReportDocumentTest, ValuesOfEveryKindStandInTheirFormat) {
    struct Case {
        Value value;
        const char16_t* format;
        const char16_t* shown;
    };
    const Date day = Date::fromQDate({2005, 1, 9});
    for (const Case& c : {Case{{}, u"", u""}, Case{{}, u"#.##0", u""}, Case{true, u"", u"Wahr"},
                          Case{-3, u"", u"-3"}, Case{1234.5, u"", u"1234,5"},
                          Case{1234.5, u"#.##0,00", u"1.234,50"}, Case{u"1234,5", u"#.##0,00", u"1.234,50"},
                          Case{u"0012", u"", u"0012"}, Case{u"12 kg", u"#.##0", u"12 kg"},
                          Case{day, u"", u"09.01.2005"}, Case{day, u"dd.MM.yyyy", u"09.01.2005"}}) {
        Report one(u"Eins"_qs);
        one.section(u"Section1"_qs)
            .addText(u"Text1"_qs, {0, 0, 100, 50})
            .format(QString::fromUtf16(c.format))
            .setDataField(u"F"_qs);
        RowList rows({u"F"_qs}, {{c.value}});
        one.bind(rows);
        EXPECT_EQ(reportAsText(*one.document()), QStringList(QString::fromUtf16(c.shown)));
    }
}

TEST_F(ReportDocumentTest, SumsCountTextsThatAreNumbersAndLeaveOutNull) {
    RowList rows({u"Nr"_qs, u"Gewässer"_qs, u"Gewicht"_qs}, {{Value(1), Value(), Value(u"1.000,4")},
                                                             {Value(2), Value(), Value()},
                                                             {Value(3), Value(), Value(0.2)}});
    report.bind(rows);
    report.control(u"Section5"_qs, u"SumGewicht"_qs).format(u"#.##0,00"_qs);
    EXPECT_TRUE(text().contains(u"Section5.SumGewicht = 1.000,60"_qs)) << qPrintable(text().join(u'\n'));
}

TEST_F(ReportDocumentTest, OnlyTheLabelMadeForItHasPageNumbers) {
    report.control(u"Section2"_qs, u"lblOrt"_qs).setCaption(u"50 %p, 20 %d"_qs);
    report.bindRows(25);
    const auto document = report.document();
    EXPECT_EQ(document->text(ReportDocument::PageHeader, 0, {1, today()}), u"50 %p, 20 %d"_qs);
    EXPECT_EQ(document->text(ReportDocument::PageFooter, 0, {1, today()}),
              u"Seite 2 von 3 (gedruckt am 14.03.2026)"_qs);
}

} // namespace
