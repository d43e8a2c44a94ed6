#include "ReportDocument.h"
#include "ErrorOf.h"
#include "FixedClock.h"
#include "ReportAsText.h"
#include "ReportSample.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ReportDocumentTest : public ::testing::Test {
protected:
    QStringList text() const { return reportAsText(*report.document()); }

    FixedClock clock;
    SampleReport report;
};

TEST_F(ReportDocumentTest, ItSaysHeadRowsSumAndPageNumberInThisOrder) {
    RowList rows({u"NR"_s, u"gewässer"_s, u"gewicht"_s},
                 {{Value(1), Value(u"Spree"), Value(1200000)}, {Value(2), Value(u"Dahme"), Value(34567)}});
    report.bind(rows);
    EXPECT_EQ(text(), (QStringList{u"Section2.lblOrt = Erkner"_s, u"1|Spree|1.200.000"_s, u"2|Dahme|34.567"_s,
                                   u"Section5.SumGewicht = 1.234.567"_s,
                                   u"Section3.Label9 = Seite 1 von 1 (gedruckt am 14.03.2026)"_s}));
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
        Report one(u"Eins"_s);
        one.section(u"Section1"_s)
            .addText(u"Text1"_s, {0, 0, 100, 50})
            .format(QString::fromUtf16(c.format))
            .setDataField(u"F"_s);
        RowList rows({u"F"_s}, {{c.value}});
        one.bind(rows);
        EXPECT_EQ(reportAsText(*one.document()), QStringList(QString::fromUtf16(c.shown)));
    }
}

TEST_F(ReportDocumentTest, SumsCountTextsThatAreNumbersAndLeaveOutNull) {
    RowList rows({u"Nr"_s, u"Gewässer"_s, u"Gewicht"_s}, {{Value(1), Value(), Value(u"1.000,4")},
                                                          {Value(2), Value(), Value()},
                                                          {Value(3), Value(), Value(0.2)}});
    report.bind(rows);
    report.control(u"Section5"_s, u"SumGewicht"_s).format(u"#.##0,00"_s);
    EXPECT_TRUE(text().contains(u"Section5.SumGewicht = 1.000,60"_s)) << qPrintable(text().join(u'\n'));
}

TEST_F(ReportDocumentTest, OnlyTheLabelMadeForItHasPageNumbers) {
    report.control(u"Section2"_s, u"lblOrt"_s).setCaption(u"50 %p, 20 %d"_s);
    report.bindRows(25);
    const auto document = report.document();
    EXPECT_EQ(document->text(ReportDocument::PageHeader, 0, {1, today()}), u"50 %p, 20 %d"_s);
    EXPECT_EQ(document->text(ReportDocument::PageFooter, 0, {1, today()}),
              u"Seite 2 von 3 (gedruckt am 14.03.2026)"_s);
}

} // namespace
