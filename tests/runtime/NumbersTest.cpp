#include "Conversions.h"
#include "ErrorOf.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(Numbers, AreReadFromTextAsGermansWriteThem) {
    const struct {
        const char* text;
        double number;
    } cases[] = {
        {"12", 12},         {"  12,5\t", 12.5},
        {"-0,25", -0.25},   {",5", 0.5},
        {"5,", 5},          {"1.234.567,89", 1234567.89},
        {"12.5", 125},      {"1e3", 1000},
        {"1,5E-3", 0.0015}, {"1e-99999999999999999999", 0},
        {"-1e-400", 0},     {"65,00 €", 65},
        {"€ -5", -5},       {"-€5", -5},
    };
    for (const auto& [text, number] : cases) {
        EXPECT_EQ(CDbl(QString::fromUtf8(text)), number) << text;
        EXPECT_TRUE(IsNumeric(QString::fromUtf8(text))) << text;
    }
}

TEST(Numbers, AreNotReadFromOtherText) {
    for (const auto* text : {"",     "  ",   "12a", "a12", "1,2,3",        "1,2.3",     ",",   "-",  "--1",
                             "1..2", ".5",   "5.",  "€",   "€5€",          "6€5",       "1 2", "1e", "1e+",
                             "e5",   "0x10", "inf", "nan", "\u0661\u0662", "24/12/1970"}) {
        EXPECT_EQ(errorOf([&] { CDbl(QString::fromUtf8(text)); }), 13) << text;
        EXPECT_EQ(errorOf([&] { CLng(QString::fromUtf8(text)); }), 13) << text;
        EXPECT_FALSE(IsNumeric(QString::fromUtf8(text))) << text;
    }
}

TEST(Numbers, OfAnyLengthOverflowInsteadOfCrashing) {
    const QString digits(100'000, u'9');
    EXPECT_EQ(errorOf([&] { CLng(digits); }), 6);
    EXPECT_EQ(errorOf([&] { CDbl(digits); }), 6);
    EXPECT_EQ(errorOf([&] { CDbl(QStringLiteral("-1e") + digits); }), 6);
    EXPECT_EQ(errorOf([&] { CDbl(u"1e9223372036854775807"); }), 6);
    EXPECT_FALSE(IsNumeric(digits));
    EXPECT_EQ(CDbl(QStringLiteral("0,") + digits), 1);
    EXPECT_EQ(CDbl(QStringLiteral("0,") + QString(100'000, u'0') + u'1'), 0);
    EXPECT_EQ(CDbl(QString(100'000, u'9') + QStringLiteral("e-100000")), 1);
}

TEST(Numbers, AreRoundedHalfToEvenWithinTheirRange) {
    const struct {
        Value value;
        qint32 whole;
    } cases[] = {
        {1.5, 2},
        {2.5, 2},
        {-2.5, -2},
        {u"3,5", 4},
        {true, -1},
        {Date{38353.5}, 38354},
        {2147483647.4, std::numeric_limits<qint32>::max()},
        {-2147483648.5, std::numeric_limits<qint32>::min()},
    };
    for (const auto& [value, whole] : cases) EXPECT_EQ(CLng(value), whole);
    EXPECT_EQ(CInt(u"32767,4"), 32767);
    EXPECT_EQ(CInt(-32768.5), -32768);
}

TEST(Numbers, AreWrittenShortWithAComma) {
    const struct {
        Value value;
        const char* text;
    } cases[] = {
        {0.1 + 0.2, "0,3"},
        {-12.5, "-12,5"},
        {-0.0, "0"},
        {0.0001, "0,0001"},
        {0.00001, "1E-05"},
        {2.0 / 3, "0,666666666666667"},
        {999999999999999.0, "999999999999999"},
        {1e15, "1E+15"},
        {std::numeric_limits<double>::denorm_min(), "4,94065645841247E-324"},
        {infinity, "1,#INF"},
        {nan, "-1,#IND"},
        {true, "Wahr"},
        {false, "Falsch"},
    };
    for (const auto& [value, text] : cases) EXPECT_EQ(CStr(value).toStdString(), text);
}

TEST(Conversions, RefuseNull) {
    const Value null;
    EXPECT_EQ(errorOf([&] { CLng(null); }), 94);
    EXPECT_EQ(errorOf([&] { CStr(null); }), 94);
    EXPECT_EQ(errorOf([&] { CDate(null); }), 94);
    EXPECT_FALSE(IsNumeric(null));
    EXPECT_FALSE(IsDate(null));
}

} // namespace
