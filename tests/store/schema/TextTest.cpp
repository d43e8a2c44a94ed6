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
    const char* pattern;
    const char* text;
    bool matches;
};

constexpr auto matches = std::to_array<Match>({
    {"", "a", false},
    {"a*", "Angel", true},
    {"*gl*", "Angel", false},
    {"a**b", "ab", true},
    {"a*b*c", "aXbXbXc", true},
    {"a*b*c", "aXbXbX", false},
    {"ÄÖÜ", "äöü", true},
    {"strasse", "Straße", false},
    {"STRA*E", "Straße", true},
    {"a%", "ab", false},
    {"a_", "ab", false},
});

} // namespace

TEST(LikePatternTest, MatchesWildcardsWithoutRegardToCase) {
    for (const auto& [pattern, text, expected] : matches)
        EXPECT_EQ(LikePattern(pattern).matches(text), expected) << pattern << ' ' << text;
}

TEST(LikePatternTest, NeedsNoEternityForAHostilePattern) {
    const LikePattern pattern(QByteArray("*a").repeated(200) + 'b');
    EXPECT_FALSE(pattern.matches(QByteArray(20'000, 'a')));
}

TEST(SqlTextTest, QuotesATextAndRefusesOneThatWouldEndItsLiteral) {
    EXPECT_EQ(quoted(QStringLiteral("Hecht \"groß\" #1")), u"'Hecht \"groß\" #1'");
    EXPECT_THROW(quoted(QStringLiteral("x' OR '1'='1")), RuntimeError);
}
