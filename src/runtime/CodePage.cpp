#include "CodePage.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

// Windows-1252 is Latin-1 except for these 32 places. Qt itself knows only Latin-1 and the Unicode encodings;
// the others need libraries that may be missing at run time. The five undefined places map to themselves, so
// that no byte of a file is lost by reading and writing it.
constexpr unsigned firstSpecial = 0x80;
constexpr std::array<char16_t, 32> specials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr bool isSpecialByte(unsigned byte) {
    return byte >= firstSpecial && byte < firstSpecial + specials.size();
}

std::optional<char> byteOf(char16_t sign) {
    if (sign <= 0xFF && !isSpecialByte(sign)) return static_cast<char>(sign);
    const auto place = std::find(specials.begin(), specials.end(), sign);
    if (place == specials.end()) return std::nullopt;
    return static_cast<char>(firstSpecial + static_cast<unsigned>(place - specials.begin()));
}

char16_t signOf(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return isSpecialByte(code) ? specials[code - firstSpecial] : char16_t{code};
}

bool isPairAt(const QString& text, qsizetype place) {
    return text.at(place).isHighSurrogate() && place + 1 < text.size() && text.at(place + 1).isLowSurrogate();
}

struct Likeness {
    char16_t sign;
    char byte;
};

// Letters in European names that Unicode does not decompose, since their stroke is part of the letter.
constexpr std::array<Likeness, 10> likenesses = {{{u'Đ', 'D'},
                                                  {u'đ', 'd'},
                                                  {u'Ħ', 'H'},
                                                  {u'ħ', 'h'},
                                                  {u'ı', 'i'},
                                                  {u'Ł', 'L'},
                                                  {u'ł', 'l'},
                                                  {u'Ŧ', 'T'},
                                                  {u'ŧ', 't'},
                                                  {u'ẞ', '\xDF'}}};

/// The byte of the character, else of its letter without the marks, so that a letter to Mr Kovač still
/// arrives. Removes several marks one by one.
char nearestByteOf(QChar sign) {
    if (const auto byte = byteOf(sign.unicode())) return *byte;
    if (sign.decompositionTag() == QChar::Canonical) return nearestByteOf(sign.decomposition().front());
    const auto like = std::find_if(likenesses.begin(), likenesses.end(),
                                   [&](const Likeness& one) { return one.sign == sign.unicode(); });
    return like == likenesses.end() ? '?' : like->byte;
}

} // namespace

QByteArray toWindows1252(const QString& given) {
    // Other systems may write a letter and its mark as two characters.
    const QString text = given.normalized(QString::NormalizationForm_C);
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype place = 0; place < text.size(); ++place) {
        bytes.append(nearestByteOf(text.at(place)));
        if (isPairAt(text, place)) ++place;
    }
    return bytes;
}

QString fromWindows1252(const QByteArray& bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) { return QChar(signOf(byte)); });
    return text;
}
