#include "NumberText.h"

#include <QByteArray>
#include <QLocale>
#include <QVarLengthArray>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

namespace {

/// These digits are exact whatever the double went through. So 0.1 + 0.2 is 0,3, and 1.005 is halfway between
/// 1,00 and 1,01.
constexpr int significantDigits = 15;

/// Room for a sign, the digits, a point and an exponent ("e-308").
using Plain = std::array<char, 32>;

QString unlimitedText(double number) {
    if (std::isnan(number)) return QStringLiteral("-1,#IND");
    return number < 0 ? QStringLiteral("-1,#INF") : QStringLiteral("1,#INF");
}

/// The whole number nearest to `number` times 10 to the power of `decimals`, as digits.
std::string scaledDigits(double number, int decimals) {
    Plain plain;
    const char* end = std::to_chars(plain.data(), plain.data() + plain.size(), number,
                                    std::chars_format::scientific, significantDigits - 1)
                          .ptr;
    std::swap(plain[0], plain[1]); // the point goes in front of the digits
    const char* exponent = plain.data() + 1 + significantDigits + 1;
    quint64 digits = 0;
    std::from_chars(plain.data() + 1, exponent - 1, digits);

    int surplus = significantDigits - 1 - QByteArrayView(exponent, end).toInt() - decimals;
    for (; surplus > 1; --surplus) digits /= 10;
    if (surplus == 1) digits = (digits + 5) / 10;
    return std::to_string(digits).append(static_cast<size_t>(std::max(-surplus, 0)), '0');
}

/// The text without a currency in front of the digits or behind them.
QString withoutCurrency(QStringView text, qsizetype place) {
    const auto before = text.first(place).trimmed();
    const auto behind = text.sliced(place + 1).trimmed();
    const bool isOutside = behind.isEmpty() || before.isEmpty() || before == u"-" || before == u"+";
    return isOutside ? before.toString() + behind.toString() : text.toString();
}

/// The characters of a number as C++ has them, empty if there is any other. Short ones need no memory.
std::string plainNumber(QStringView text) {
    const auto isDigitAt = [&](qsizetype place) {
        return place >= 0 && place < text.size() && text.at(place) >= u'0' && text.at(place) <= u'9';
    };
    std::string plain;
    bool isWhole = true;
    for (qsizetype place = 0; place < text.size(); ++place) {
        const QChar sign = text.at(place);
        const bool dividesThousands = isWhole && sign == u'.' && isDigitAt(place - 1) && isDigitAt(place + 1);
        if (!isDigitAt(place) && !dividesThousands && !QStringView(u"-+,eE").contains(sign)) return {};
        if (sign == u',' || sign == u'e' || sign == u'E') isWhole = false;
        if (!dividesThousands) plain += sign == u',' ? '.' : sign.toLatin1();
    }
    return plain;
}

} // namespace

QString numberText(double number) {
    if (!std::isfinite(number)) return unlimitedText(number);
    Plain plain;
    // Adding zero takes the minus from a zero.
    char* end = std::to_chars(plain.data(), plain.data() + plain.size(), number + 0.0,
                              std::chars_format::general, significantDigits)
                    .ptr;
    std::replace(plain.data(), end, '.', ',');
    std::replace(plain.data(), end, 'e', 'E');
    return QString::fromLatin1(plain.data(), end - plain.data());
}

QString numberText(double number, int decimals, bool isGrouped) {
    if (!std::isfinite(number)) return unlimitedText(number);
    const std::string digits = scaledDigits(std::abs(number), decimals);
    const int known = static_cast<int>(digits.size());
    QVarLengthArray<QChar, 24> text; // space for nearly all numbers
    if (number < 0 && digits != "0") text += u'-';
    for (int place = std::max(known - decimals, 1) - 1; place >= -decimals; --place) {
        const int index = known - 1 - decimals - place;
        if (place == -1) text += u',';
        text += QLatin1Char(index < 0 ? '0' : digits[static_cast<size_t>(index)]);
        if (isGrouped && place > 0 && place % 3 == 0) text += u'.';
    }
    return QString(text.constData(), text.size());
}

std::optional<double> numberFromText(QStringView text) {
    const QStringView typed = text.trimmed();
    const qsizetype currency = typed.indexOf(u'€');
    if (currency >= 0) {
        const QString bare = withoutCurrency(typed, currency);
        return bare.contains(u'€') ? std::nullopt : numberFromText(bare);
    }
    const bool hasPlus = typed.startsWith(u'+') && !typed.startsWith(u"+-");
    const std::string plain = plainNumber(typed.sliced(hasPlus ? 1 : 0));
    const char* end = plain.data() + plain.size();
    double number = 0;
    const auto read = std::from_chars(plain.data(), end, number);
    if (read.ec == std::errc::invalid_argument || read.ptr != end) return std::nullopt;
    // Zero or infinite, as the number is too small or too large.
    if (read.ec == std::errc::result_out_of_range)
        return QLocale::c().toDouble(QString::fromStdString(plain));
    return number;
}
