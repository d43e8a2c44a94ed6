#include "CodePage.h"

#include <QList>
#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace {

// Windows-1252 is Latin-1 except for these 32 places. Qt itself knows only Latin-1 and the Unicode encodings;
// the others need libraries that may be missing at run time. The five undefined places map to themselves, so
// that no byte of a file is lost by reading and writing it.
constexpr unsigned firstSpecial = 0x80;
constexpr std::array<char16_t, 32> specials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::optional<char> byteOf(char32_t sign) {
    const auto* place = std::find(specials.begin(), specials.end(), sign);
    if (place != specials.end()) return static_cast<char>(firstSpecial + (place - specials.begin()));
    const bool isLatin1 = sign < firstSpecial || (sign >= firstSpecial + specials.size() && sign <= 0xFF);
    return isLatin1 ? std::optional(static_cast<char>(sign)) : std::nullopt;
}

QChar signOf(char byte) {
    const auto place = static_cast<unsigned char>(byte) - firstSpecial;
    return place < specials.size() ? QChar(specials[place]) : QLatin1Char(byte);
}

// Letters in European names that Unicode does not decompose, since their stroke is part of the letter.
constexpr QStringView withStroke = u"ĐđĦħıŁłŦŧẞ";
constexpr std::string_view withoutStroke = "DdHhiLlTt\xDF";

/// The byte of the character, else of its letter without the marks, so that a letter to Mr Kovač still
/// arrives. Removes several marks one by one.
char nearestByteOf(char32_t sign) {
    if (const auto byte = byteOf(sign)) return *byte;
    if (QChar::decompositionTag(sign) == QChar::Canonical)
        return nearestByteOf(QChar::decomposition(sign).front().unicode());
    const auto place = sign > 0xFFFF ? -1 : withStroke.indexOf(static_cast<char16_t>(sign));
    return place < 0 ? '?' : withoutStroke[static_cast<std::size_t>(place)];
}

} // namespace

QByteArray toWindows1252(const QString& text) {
    QByteArray bytes;
    bytes.reserve(text.size());
    // Other systems may write a letter and its mark as two characters.
    for (const char32_t sign : text.normalized(QString::NormalizationForm_C).toUcs4())
        bytes.append(nearestByteOf(sign));
    return bytes;
}

QString fromWindows1252(const QByteArray& bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), signOf);
    return text;
}
