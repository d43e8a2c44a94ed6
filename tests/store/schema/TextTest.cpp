#include "LikePattern.h"
#include "RuntimeError.h"
#include "SqlText.h"
#include "TextComparison.h"

#include <array>
#include <gtest/gtest.h>

TEST(TextComparisonTest, SortsLikeAGermanTelephoneListAndIgnoresCase) {
    constexpr auto sorted = std::to_array<const char*>(
        {"", "-", "1", "a", "Ä", "ab", "äb", "Abc", "b", "Strasse", "straße", "Strassen", "z", "Ω"});
    for (size_t a = 0; a < sorted.size(); ++a)
        for (size_t b = 0; b < sorted.size(); ++b) {
            const int result = compareTexts(sorted[a], sorted[b]);
            EXPECT_EQ(result < 0, a < b) << sorted[a] << ' ' << sorted[b];
            EXPECT_EQ(result == 0, a == b) << sorted[a] << ' ' << sorted[b];
        }
}

TEST(TextComparisonTest, TakesTextsThatDifferInCaseOnlyForEqual) {
    constexpr auto pairs = std::to_array<std::array<const char*, 2>>(
        {{"HECHT", "hecht"}, {"ÄÖÜ", "äöü"}, {"aÄ", "Aä"}, {"ΣΑ", "σα"}, {"É", "é"}, {"ẞ", "ß"}});
    for (const auto& [upper, lower] : pairs) EXPECT_EQ(compareTexts(upper, lower), 0) << upper;
}

TEST(TextComparisonTest, BearsBytesThatAreNoText) {
    EXPECT_NE(compareTexts("\xff\xfe", "a"), 0);
    EXPECT_EQ(compareTexts("\xc3", "\xc3"), 0);
}

namespace {

struct Match {
    QStringView pattern;
    const char* text;
    bool matches;
};

constexpr auto matches = std::to_array<Match>({
    {u"", "a", false},          {u"a*", "Angel", true},      {u"*gl*", "Angel", false},
    {u"a**b", "ab", true},      {u"a*b*c", "aXbXbXc", true}, {u"a*b*c", "aXbXbX", false},
    {u"?", "\U0001F41F", true}, {u"??", "ä", false},         {u"A#", "ab", false},
    {u"ÄÖÜ", "äöü", true},      {u"stra?e", "Straße", true}, {u"strasse", "Straße", false},
    {u"[a-c]x", "dx", false},   {u"[A-C]x", "cx", true},     {u"[!a-c]x", "bx", false},
    {u"[ä-ü]", "Ö", true},      {u"[*]", "*", true},         {u"[#]1", "#1", true},
    {u"a[]b", "ab", true},      {u"[!]", "!", true},         {u"[a-]", "-", true},
    {u"a%", "ab", false},
});

} // namespace

TEST(LikePatternTest, MatchesWildcardsWithoutRegardToCase) {
    for (const auto& [pattern, text, expected] : matches)
        EXPECT_EQ(LikePattern(pattern.toString()).matches(text), expected)
            << pattern.toString().toStdString() << ' ' << text;
}

TEST(LikePatternTest, NeedsNoEternityForAHostilePattern) {
    const LikePattern pattern(QStringLiteral("*a").repeated(200) + u'b');
    EXPECT_FALSE(pattern.matches(QByteArray(20'000, 'a')));
}

TEST(SqlTextTest, QuotesATextAndRefusesOneThatWouldEndItsLiteral) {
    EXPECT_EQ(quoted(QStringLiteral("Hecht \"groß\" #1")), u"'Hecht \"groß\" #1'");
    EXPECT_THROW(quoted(QStringLiteral("x' OR '1'='1")), RuntimeError);
}
