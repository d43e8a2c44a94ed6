#include "NumberPattern.h"

#include "DecimalDigits.h"
#include "NumberText.h"

#include <QVarLengthArray>
#include <algorithm>
#include <cmath>

namespace {

bool isPlace(QChar sign) { return sign == u'0' || sign == u'#'; }
bool isDivider(QChar sign) { return sign == u'.' || sign == u','; }

/// Removes the literal characters at the front, up to the first placeholder if `stopAtPlace`. "\" makes the
/// next character a literal.
QString takeLiterals(QStringView& pattern, bool stopAtPlace) {
    QString literals;
    while (!pattern.isEmpty()) {
        if (stopAtPlace && (isPlace(pattern.front()) || isDivider(pattern.front()))) break;
        if (pattern.front() == u'\\' && pattern.size() > 1) pattern = pattern.sliced(1);
        literals += pattern.front();
        pattern = pattern.sliced(1);
    }
    return literals;
}

QStringView takePlaces(QStringView& pattern) {
    const auto* end = std::find_if_not(pattern.begin(), pattern.end(),
                                       [](QChar sign) { return isPlace(sign) || isDivider(sign); });
    const auto places = pattern.first(end - pattern.begin());
    pattern = pattern.sliced(places.size());
    return places;
}

/// The place of the decimal separator, the end if there is none.
qsizetype decimalSignIn(QStringView places) {
    const auto last = std::max(places.lastIndexOf(u'.'), places.lastIndexOf(u','));
    if (last < 0) return places.size();
    const auto behind = places.sliced(last + 1);
    const auto optional = behind.indexOf(u'#');
    const bool dividesThousands = optional >= 0 && behind.indexOf(u'0', optional) >= 0;
    return dividesThousands ? places.size() : last;
}

int countOf(QStringView places, bool (*counts)(QChar)) {
    return static_cast<int>(std::count_if(places.begin(), places.end(), counts));
}

} // namespace

NumberPattern::NumberPattern(QStringView pattern) {
    m_prefix = takeLiterals(pattern, true);
    readPlaces(takePlaces(pattern));
    m_suffix = takeLiterals(pattern, false);
}

void NumberPattern::readPlaces(QStringView places) {
    const auto comma = decimalSignIn(places);
    const auto integer = places.first(comma);
    const auto decimals = places.sliced(std::min(comma + 1, places.size()));
    m_hasPlaces = !places.isEmpty();
    m_hasComma = comma < places.size();
    m_isGrouped = countOf(integer, isDivider) > 0;
    m_minIntegerDigits = static_cast<int>(integer.count(u'0'));
    m_minDecimals = static_cast<int>(decimals.lastIndexOf(u'0')) + 1;
    m_maxDecimals = countOf(decimals, isPlace);
}

QString NumberPattern::textOf(double number) const {
    if (!m_hasPlaces) return m_prefix;
    if (!std::isfinite(number)) return numberText(number);

    DecimalDigits digits(number);
    digits.roundTo(m_maxDecimals);
    QVarLengthArray<QChar, 24> text; // room for nearly all numbers
    if (digits.isNegative()) text += u'-';
    text.append(m_prefix.constData(), m_prefix.size());
    for (int place = std::max(digits.integerDigits(), m_minIntegerDigits) - 1; place >= 0; --place) {
        text += QLatin1Char(digits.digitAt(place));
        if (m_isGrouped && place > 0 && place % 3 == 0) text += u'.';
    }
    if (m_hasComma) text += u',';
    for (int place = 1; place <= std::max(digits.decimals(), m_minDecimals); ++place)
        text += QLatin1Char(digits.digitAt(-place));
    text.append(m_suffix.constData(), m_suffix.size());
    return QString(text.constData(), text.size());
}
