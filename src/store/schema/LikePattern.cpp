#include "LikePattern.h"

#include "TextComparison.h"

#include <algorithm>

namespace {

/// On a mismatch the last "*" takes one character more, so the work is at most text times pattern.
template<typename SignAt>
bool matchesSigns(const QList<char32_t>& pattern, const SignAt& signAt, qsizetype size) {
    qsizetype place = 0;
    qsizetype star = -1;
    qsizetype sign = 0;
    qsizetype starSign = 0;
    while (sign < size) {
        const char32_t wanted = place < pattern.size() ? pattern[place] : U'\0';
        if (wanted == U'*') {
            star = place++;
            starSign = sign;
        } else if (place < pattern.size() && wanted == signAt(sign)) {
            ++place;
            ++sign;
        } else if (star >= 0) {
            place = star + 1;
            sign = ++starSign;
        } else {
            return false;
        }
    }
    while (place < pattern.size() && pattern[place] == U'*') ++place;
    return place == pattern.size();
}

} // namespace

LikePattern::LikePattern(QByteArrayView pattern)
    : m_signs(foldedText(pattern)) {}

bool LikePattern::matches(QByteArrayView text) const {
    const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (std::ranges::all_of(text, isAscii)) {
        const auto ascii = [text](qsizetype i) { return foldedAscii(static_cast<unsigned char>(text[i])); };
        return matchesSigns(m_signs, ascii, text.size());
    }
    const QList<char32_t> signs = foldedText(text);
    return matchesSigns(
        m_signs, [&signs](qsizetype i) { return signs[i]; }, signs.size());
}
