#include "LikePattern.h"

#include "RuntimeError.h"
#include "StoredText.h"
#include "TextComparison.h"

#include <QList>
#include <algorithm>

namespace {

bool isAsciiText(QByteArrayView text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

LikePattern::LikePattern(const QString& pattern) {
    const QList<uint> signs = pattern.toUcs4();
    for (qsizetype i = 0; i < signs.size(); ++i) {
        switch (signs[i]) {
        case U'*':
            m_elements.push_back({.kind = Kind::Any});
            break;
        case U'?':
            m_elements.push_back({.kind = Kind::One});
            break;
        case U'#':
            m_elements.push_back({.kind = Kind::Digit});
            break;
        case U'[':
            i = readClass(signs, i + 1);
            break;
        default:
            m_elements.push_back({.kind = Kind::Sign, .sign = foldedCharacter(signs[i])});
        }
    }
}

/// Reads a class from `start`, the place behind its opening bracket. Returns the place of the closing
/// bracket.
qsizetype LikePattern::readClass(const QList<uint>& signs, qsizetype start) {
    const qsizetype end = signs.indexOf(U']', start);
    if (end < 0) throw runtimeError(RuntimeError::badPattern);
    Element element{.kind = Kind::Class};
    qsizetype i = start;
    if (end - i > 1 && signs[i] == U'!') {
        element.inverted = true;
        ++i;
    }
    while (i < end) {
        const bool isRange = i + 2 < end && signs[i + 1] == U'-';
        const char32_t first = foldedCharacter(signs[i]);
        element.ranges.push_back({first, isRange ? foldedCharacter(signs[i + 2]) : first});
        i += isRange ? 3 : 1;
    }
    // Empty brackets match no character: "a[]b" matches "ab".
    if (end > start) m_elements.push_back(std::move(element));
    return end;
}

bool LikePattern::accepts(const Element& element, char32_t sign) {
    switch (element.kind) {
    case Kind::One:
        return true;
    case Kind::Digit:
        return sign >= U'0' && sign <= U'9';
    case Kind::Sign:
        return sign == element.sign;
    default:
        break;
    }
    const bool listed = std::ranges::any_of(
        element.ranges, [sign](const Range& range) { return sign >= range.first && sign <= range.last; });
    return listed != element.inverted;
}

/// On a mismatch the last "*" takes one character more, so the work is at most text times pattern.
template<typename Signs>
bool LikePattern::matchesSigns(const Signs& text, qsizetype size) const {
    const size_t none = m_elements.size();
    size_t element = 0;
    size_t star = none;
    qsizetype sign = 0;
    qsizetype starSign = 0;
    while (sign < size) {
        if (element < none && m_elements[element].kind == Kind::Any) {
            star = element++;
            starSign = sign;
        } else if (element < none && accepts(m_elements[element], text(sign))) {
            ++element;
            ++sign;
        } else if (star != none) {
            element = star + 1;
            sign = ++starSign;
        } else {
            return false;
        }
    }
    while (element < none && m_elements[element].kind == Kind::Any) ++element;
    return element == none;
}

bool LikePattern::matches(QByteArrayView text) const {
    if (isAsciiText(text)) {
        const auto ascii = [text](qsizetype i) { return foldedAscii(static_cast<unsigned char>(text[i])); };
        return matchesSigns(ascii, text.size());
    }
    const QList<uint> signs = storedText(text).toUcs4();
    return matchesSigns([&signs](qsizetype i) { return foldedCharacter(signs[i]); }, signs.size());
}
