#include "Conversions.h"
#include "ErrorOf.h"
#include "FixedClock.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

/// The clock is in 2005, no leap year. Dates without a year are read in it.
class Dates : public testing::Test {
protected:
    Dates() { m_clock.setDay(QDate(2005, 6, 15)); }

private:
    FixedClock m_clock;
};

TEST_F(Dates, AreReadAsGermansTypeThem) {
    const struct {
        const char* text;
        QDate day;
    } cases[] = {
        {" 1.2.05 ", {2005, 2, 1}},
        {"1-2-2005", {2005, 2, 1}},
        {"1. 2. 2005", {2005, 2, 1}},
        {"1.1.29", {2029, 1, 1}},
        {"1.1.30", {1930, 1, 1}},
        {"1.2.", {2005, 2, 1}},
        {"1.2", {2005, 2, 1}},
        {"29.02.2004", {2004, 2, 29}},
        {"1970-12-24", {1970, 12, 24}},
        {"12.1970", {1970, 12, 1}},
        {"24. Dezember 1970", {1970, 12, 24}},
        {"24-dez-70", {1970, 12, 24}},
        {"3 MÄRZ 2001", {2001, 3, 3}},
        {"3. Mrz.", {2005, 3, 3}},
        {"2/25/2005", {2005, 2, 25}},
        {"12.24.1970", {1970, 12, 24}},
        {"1.1.0100", {100, 1, 1}},
    };
    for (const auto& [text, day] : cases) {
        const Value typed(QString::fromUtf8(text));
        EXPECT_TRUE(IsDate(typed) && CDate(typed) == Date::fromQDate(day)) << text;
    }
}

TEST_F(Dates, AreNotReadFromOtherText) {
    // Parts that are no number or misplaced; missing days; characters before, between and after.
    for (const QString& text :
         QStringLiteral(
             "|  |.|5|38353|1..2|1.2.3.4|1/2/|1.2/2005|1 2 2005|1,2,2005|-1.2.2005|001.2.2005|"
             "31.02.|31.02.2005|29.02.2005|30.2|13.13.2005|0.1.2005|1.0.2005|32.1.2005|13.1970|"
             "1.1.0000|1.1.099|1.1.10000|99999999999999999999.1.2005|\u0661.\u0662.2005|"
             "1.2.2005.|1.2.2005x|1.2.2005 8|24. Xember 1970|24. De 1970|Dez. 24 1970|Anglerverein")
             .split(u'|')) {
        EXPECT_FALSE(IsDate(text)) << text.toStdString();
        EXPECT_EQ(errorOf([&] { CDate(text); }), 13) << text.toStdString();
    }
    EXPECT_FALSE(IsDate(38353.0));
    EXPECT_TRUE(IsDate(Date{38353}));
}

TEST_F(Dates, TakeATimeBehindThemOrAlone) {
    EXPECT_EQ(CDate(u"01.01.2005 18:00").days, 38353.75);
    EXPECT_EQ(CDate(u"1.1.  6:00:00").days, 38353.25);
    EXPECT_EQ(CDate(u"12:00").days, 0.5);
    EXPECT_EQ(CDate(u"29.12.1899 6:00").days, -1.25);
    for (const auto* text : {"24:00", "12:60", "12:00:60", "12:", ":30", "12:30:", "1:2:3:4", "012:30",
                             "31.02.2005 12:00", "12:00 1.1.2005", "12:Mai"})
        EXPECT_FALSE(IsDate(QString::fromUtf8(text))) << text;
}

TEST_F(Dates, HaveAnEmptyOneThatIsWrittenAsMidnight) {
    for (const auto* text : {"00:00:0000", "00:00:00", "0:00"}) {
        EXPECT_TRUE(IsDate(QString::fromUtf8(text)));
        EXPECT_TRUE(CDate(QString::fromUtf8(text)).isEmpty());
    }
    EXPECT_EQ(CStr(Date()).toStdString(), "00:00:00");
    EXPECT_EQ(Date::fromQDate(QDate(1899, 12, 30)), Date());
    EXPECT_EQ(Date::fromQDate(QDate()), Date());
}

TEST_F(Dates, AreWrittenInTheShortGermanForm) {
    const struct {
        double days;
        const char* text;
    } cases[] = {
        {38353, "01.01.2005"},   {38353.75, "01.01.2005 18:00:00"}, {0.25, "06:00:00"},
        {-1, "29.12.1899"},      {-1.25, "29.12.1899 06:00:00"},    {38353.9999999, "02.01.2005"},
        {-657434, "01.01.0100"}, {2958465, "31.12.9999"},
    };
    for (const auto& [days, text] : cases) {
        EXPECT_EQ(CStr(Date{days}).toStdString(), text);
    }
    EXPECT_EQ(CDate(CStr(Date{38353.75})), Date{38353.75});
}

} // namespace
