#include "Format.h"
#include "ErrorOf.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

struct Case {
    Value value;
    const char* pattern;
    const char* text;
};

void expectTexts(std::initializer_list<Case> cases) {
    for (const auto& [value, pattern, text] : cases)
        EXPECT_EQ(Format(value, QString::fromUtf8(pattern)).toStdString(), text) << "in " << pattern;
}

TEST(Format, RoundsHalfAwayFromZeroOnTheDecimalText) {
    expectTexts({
        {1.005, "###0.00", "1,01"},
        {2.675, "###0.00", "2,68"},
        {12.1 - 10.095, "###0.00", "2,01"},
        {-0.004, "###0.00", "0,00"},
        {-0.005, "###0.00", "-0,01"},
        {9.995, "###0.00", "10,00"},
        {0.5, "0", "1"},
        {1e20, "###0.00", "100000000000000000000,00"},
        {true, "0", "-1"},
        {std::numeric_limits<double>::infinity(), "###0.00", "1,#INF"},
    });
}

TEST(Format, PutsPointsBetweenThousands) {
    expectTexts({
        {1234567.0, "#.##0", "1.234.567"},
        {-1234567.891, "#.##0,00", "-1.234.567,89"},
        {999.5, "#.##0", "1.000"},
        {0.0, "#.##0", "0"},
    });
}

TEST(Format, WritesDatesInTheirPlaces) {
    expectTexts({
        {Date{25926}, "\\#m\\/d\\/yyyy\\#", "#12/24/1970#"},
        {Date{25926.75}, "dd.MM.yyyy", "24.12.1970"},
        {Date{38353}, "dd.mm.yy", "01.01.05"},
        {Date(), "\\#m\\/d\\/yyyy\\#", "#12/30/1899#"},
        {38353, "dd.MM.yyyy", "01.01.2005"},
        {Date{38353.5}, "###0.00", "38353,50"},
    });
    EXPECT_EQ(errorOf([] { Format(Date{1e9}, QStringLiteral("dd.MM.yyyy")); }), 6);
}

TEST(Format, ConvertsTextThatIsANumberOrADate) {
    expectTexts({
        {u"1.234,5", "###0.00", "1234,50"},
        {u"24.12.1970", "\\#m\\/d\\/yyyy\\#", "#12/24/1970#"},
        {u"38353", "dd.MM.yyyy", "01.01.2005"},
        {u"abc", "###0.00", "abc"},
        {u"31.02.2005", "\\#m\\/d\\/yyyy\\#", "31.02.2005"},
        {u"99999999", "dd.MM.yyyy", "99999999"},
        {Value(), "###0.00", ""},
    });
}

} // namespace
