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
    report.bind(
        rowsOf({u"NR"_s, u"gewässer"_s, u"gewicht"_s}, {{1, u"Spree", 1200000}, {2, u"Dahme", 34567}}));
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
            .controls.push_back({ReportControl::Kind::Text,
                                 u"Text1"_s,
                                 {0, 0, 100, 50},
                                 {.format = QString::fromUtf16(c.format)},
                                 {},
                                 u"F"_s});
        one.bind(rowsOf({u"F"_s}, {{c.value}}));
        EXPECT_EQ(reportAsText(*one.document()), QStringList(QString::fromUtf16(c.shown)));
    }
}

TEST_F(ReportDocumentTest, SumsCountTextsThatAreNumbersAndLeaveOutNull) {
    report.bind(rowsOf({u"Nr"_s, u"Gewässer"_s, u"Gewicht"_s},
                       {{1, Value(), u"1.000,4"}, {2, Value(), Value()}, {3, Value(), 0.2}}));
    report.control(u"Section5"_s, u"SumGewicht"_s).look.format = u"#.##0,00"_s;
    EXPECT_TRUE(text().contains(u"Section5.SumGewicht = 1.000,60"_s)) << qPrintable(text().join(u'\n'));
}

TEST_F(ReportDocumentTest, OnlyTheLabelMadeForItHasPageNumbers) {
    report.control(u"Section2"_s, u"lblOrt"_s).caption = u"50 %p, 20 %d"_s;
    report.bindRows(25);
    const auto document = report.document();
    const auto first = [&](ReportLayout::Band band) {
        return document->text(document->section(band).controls[0], {1, today()});
    };
    EXPECT_EQ(first(ReportLayout::PageHeader), u"50 %p, 20 %d"_s);
    EXPECT_EQ(first(ReportLayout::PageFooter), u"Seite 2 von 3 (gedruckt am 14.03.2026)"_s);
}

} // namespace
