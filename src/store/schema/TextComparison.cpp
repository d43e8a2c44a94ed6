#include "TextComparison.h"

#include "StoredText.h"

#include <algorithm>

namespace {

constexpr bool isAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

constexpr bool isCombining(char32_t c) { return c >= 0x300 && c <= 0x36f; }

char32_t foldedCharacter(char32_t c) { return c < 0x80 ? foldedAscii(c) : QChar::toCaseFolded(c); }

char32_t baseLetter(char32_t c) {
    constexpr char32_t endOfLatin = 0x250;
    if (c < 0x80 || c >= endOfLatin) return c;
    const QString parts = QChar::decomposition(c);
    return parts.isEmpty() ? c : foldedCharacter(parts.front().unicode());
}

/// The letters without their marks. They decide the order first.
QList<char32_t> baseLetters(const QList<char32_t>& characters) {
    QList<char32_t> letters;
    letters.reserve(characters.size());
    for (const char32_t c : characters) {
        if (c == U'ß') letters += U's';
        if (!isCombining(c)) letters += c == U'ß' ? U's' : baseLetter(c);
    }
    return letters;
}

int order(const QList<char32_t>& a, const QList<char32_t>& b) {
    const auto result = std::lexicographical_compare_three_way(a.begin(), a.end(), b.begin(), b.end());
    return result < 0 ? -1 : (result > 0 ? 1 : 0);
}

int compareAnyLetters(QByteArrayView a, QByteArrayView b) {
    const QList<char32_t> foldedA = foldedText(a);
    const QList<char32_t> foldedB = foldedText(b);
    const int byLetters = order(baseLetters(foldedA), baseLetters(foldedB));
    return byLetters != 0 ? byLetters : order(foldedA, foldedB);
}

} // namespace

QList<char32_t> foldedText(QByteArrayView text) {
    QList<char32_t> characters;
    characters.reserve(text.size());
    for (const uint c : storedText(text).toUcs4()) characters += foldedCharacter(c);
    return characters;
}

int compareTexts(QByteArrayView a, QByteArrayView b) {
    const qsizetype common = std::min(a.size(), b.size());
    for (qsizetype i = 0; i < common; ++i) {
        // A combining mark may belong to the letter before it, so the slow comparison starts again at the
        // first character.
        if (!isAscii(a[i]) || !isAscii(b[i])) return a == b ? 0 : compareAnyLetters(a, b);
        const int difference = static_cast<int>(foldedAscii(static_cast<unsigned char>(a[i]))) -
                               static_cast<int>(foldedAscii(static_cast<unsigned char>(b[i])));
        if (difference != 0) return difference;
    }
    const QByteArrayView& longer = a.size() > b.size() ? a : b;
    if (common < longer.size() && !isAscii(longer[common])) return compareAnyLetters(a, b);
    return a.size() < b.size() ? -1 : (a.size() > b.size() ? 1 : 0);
}
