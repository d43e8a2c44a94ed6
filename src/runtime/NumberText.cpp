#include "NumberText.h"

#include "DecimalDigits.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace {

void appendDigits(QString& text, const DecimalDigits& number, int fromPlace, int toPlace) {
    for (int place = fromPlace; place >= toPlace; --place) text += QLatin1Char(number.digitAt(place));
}

QString plainText(const DecimalDigits& number) {
    QString text;
    appendDigits(text, number, std::max(number.integerDigits(), 1) - 1, 0);
    if (number.decimals() == 0) return text;
    text += u',';
    appendDigits(text, number, -1, -number.decimals());
    return text;
}

QString exponentText(const DecimalDigits& number) {
    const int exponent = number.integerDigits() - 1;
    QString text =
        QString::fromLatin1(number.digits().data(), static_cast<qsizetype>(number.digits().size()));
    if (text.size() > 1) text.insert(1, u',');
    text += exponent < 0 ? u"E-" : u"E+";
    if (std::abs(exponent) < 10) text += u'0';
    return text + QString::number(std::abs(exponent));
}

QString unlimitedText(double number) {
    if (std::isnan(number)) return QStringLiteral("-1,#IND");
    return number < 0 ? QStringLiteral("-1,#INF") : QStringLiteral("1,#INF");
}

bool isDigit(QChar sign) { return sign >= u'0' && sign <= u'9'; }

/// Reads a number from the front to the end and writes it down as C++ would have it.
class NumberReader {
public:
    explicit NumberReader(QStringView text)
        : m_rest(text) {}

    bool read() {
        takeCurrency();
        if (takeAny(u"-"))
            m_plain += '-';
        else
            takeAny(u"+");
        takeCurrency();
        if (!readMantissa() || !readExponent()) return false;
        takeCurrency();
        return m_rest.isEmpty();
    }
    const std::string& plain() const { return m_plain; }

private:
    bool takeAny(QStringView signs) {
        if (m_rest.isEmpty() || std::ranges::find(signs, m_rest.front()) == signs.end()) return false;
        m_rest = m_rest.sliced(1);
        return true;
    }

    /// Once, with the blanks around it.
    void takeCurrency() {
        if (m_rest.isEmpty() || isDigit(m_rest.front())) return;
        const QStringView rest = m_rest.trimmed();
        if (m_hasCurrency || !rest.startsWith(u'€')) return;
        m_hasCurrency = true;
        m_rest = rest.sliced(1).trimmed();
    }

    bool readDigits() {
        const auto before = m_rest.size();
        while (!m_rest.isEmpty() && isDigit(m_rest.front())) {
            m_plain += static_cast<char>(m_rest.front().unicode());
            m_rest = m_rest.sliced(1);
        }
        return m_rest.size() < before;
    }

    bool readMantissa() {
        const bool whole = readDigits();
        while (whole && takeAny(u"."))
            if (!readDigits()) return false;
        if (!takeAny(u",")) return whole;
        // A comma may end the number or begin it, but not stand alone.
        if (!whole) m_plain += '0';
        m_plain += '.';
        const bool fraction = readDigits();
        if (!fraction) m_plain += '0';
        return whole || fraction;
    }

    bool readExponent() {
        if (!takeAny(u"eE")) return true;
        m_plain += 'e';
        if (takeAny(u"-"))
            m_plain += '-';
        else
            takeAny(u"+");
        return readDigits();
    }

    QStringView m_rest;
    bool m_hasCurrency = false;
    std::string m_plain; ///< short ones need no memory of their own
};

/// For a number that is either far too large or far too small for a double.
bool isTooSmall(const std::string& plain) {
    const auto mantissaEnd = std::min(plain.find('e'), plain.size());
    const auto point = std::min(plain.find('.'), mantissaEnd);
    const auto first = std::ranges::find_if(plain, [](char sign) { return sign > '0'; });
    const char* end = plain.data() + plain.size();
    const char* exponentText = plain.data() + std::min(mantissaEnd + 1, plain.size());

    qint64 exponent = 0;
    const auto read = std::from_chars(exponentText, end, exponent);
    if (read.ec == std::errc::result_out_of_range) return *exponentText == '-';
    return exponent < first - plain.begin() - static_cast<qint64>(point);
}

double valueOf(const std::string& plain) {
    double value = 0;
    const auto read = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (read.ec != std::errc::result_out_of_range) return value;
    return isTooSmall(plain) ? 0 : std::numeric_limits<double>::infinity();
}

} // namespace

QString numberText(double number) {
    if (!std::isfinite(number)) return unlimitedText(number);
    const DecimalDigits digits(number);
    const bool plain = digits.integerDigits() > -4 && digits.integerDigits() <= 15;
    const QString text = plain ? plainText(digits) : exponentText(digits);
    return digits.isNegative() ? u'-' + text : text;
}

std::optional<double> numberFromText(QStringView text) {
    NumberReader reader(text.trimmed());
    if (!reader.read()) return std::nullopt;
    return valueOf(reader.plain());
}
