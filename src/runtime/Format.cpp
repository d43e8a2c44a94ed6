#include "Format.h"

#include "Conversions.h"
#include "DateText.h"
#include "NumberPattern.h"
#include "NumberText.h"
#include "RuntimeError.h"

#include <QHash>
#include <cmath>
#include <optional>

namespace {

bool isDatePlace(QChar sign) { return sign == u'd' || sign == u'm' || sign == u'M' || sign == u'y'; }

/// Decided by the first placeholder: one of a date, or one of a number ("0 km").
bool isForDates(QStringView pattern) {
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        if (pattern.at(i) == u'\\')
            ++i;
        else if (isDatePlace(pattern.at(i)))
            return true;
        else if (pattern.at(i) == u'0' || pattern.at(i) == u'#')
            return false;
    }
    return false;
}

std::optional<double> finite(std::optional<double> number) {
    return number && std::isfinite(*number) ? number : std::nullopt;
}

/// Parsed once: lists show thousands of numbers in the same pattern.
const NumberPattern& patternOf(const QString& pattern) {
    static QHash<QString, NumberPattern> known;
    auto place = known.find(pattern);
    if (place == known.end()) place = known.insert(pattern, NumberPattern(pattern));
    return *place;
}

/// A text such as "1.2" is both date and number: `preferDate` decides. Empty if it is neither.
std::optional<double> numberIn(const QString& text, bool preferDate) {
    const auto date = dateFromText(text);
    if (date && preferDate) return date->days;
    if (const auto number = finite(numberFromText(text))) return number;
    return date ? std::optional(date->days) : std::nullopt;
}

QString padded(int number, qsizetype width) { return QString::number(number).rightJustified(width, u'0'); }

QString placeText(QDate day, QChar place, qsizetype length) {
    if (place == u'd') return padded(day.day(), length);
    if (place == u'y') return length > 2 ? padded(day.year(), 4) : padded(day.year() % 100, 2);
    return padded(day.month(), length);
}

qsizetype lengthOfPlace(QStringView pattern) {
    qsizetype length = 1;
    const qsizetype longest = pattern.front() == u'y' ? 4 : 2;
    while (length < pattern.size() && length < longest && pattern.at(length) == pattern.front()) ++length;
    return length;
}

QString dateInPattern(QDate day, QStringView pattern) {
    QString text;
    while (!pattern.isEmpty()) {
        const auto length = isDatePlace(pattern.front()) ? lengthOfPlace(pattern) : 1;
        if (isDatePlace(pattern.front())) {
            text += placeText(day, pattern.front(), length);
        } else {
            if (pattern.front() == u'\\' && pattern.size() > 1) pattern = pattern.sliced(1);
            text += pattern.front();
        }
        pattern = pattern.sliced(length);
    }
    return text;
}

} // namespace

QString Format(const Value& value, const QString& pattern) {
    if (value.isNull()) return {};
    if (pattern.isEmpty()) return CStr(value);

    const bool isText = value.kind() == Value::Kind::Text;
    const bool forDates = isForDates(pattern);
    const auto number = isText ? numberIn(value.text(), forDates) : std::optional(CDbl(value));
    if (!number) return value.text();
    if (!forDates) return patternOf(pattern).textOf(*number);

    const QDate day = Date{*number}.toQDate();
    if (day.isValid()) return dateInPattern(day, pattern);
    if (isText) return value.text();
    throw runtimeError(RuntimeError::overflow);
}
