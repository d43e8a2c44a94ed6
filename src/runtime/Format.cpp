#include "Format.h"

#include "Conversions.h"
#include "NumberText.h"

#include <QRegularExpression>
#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// A text such as "1.2" is both date and number: `preferDate` decides. Empty if it is neither.
std::optional<double> numberIn(const Value& value, bool preferDate) {
    if (preferDate && IsDate(value)) return CDate(value).days;
    if (IsNumeric(value)) return CDbl(value);
    return IsDate(value) ? std::optional(CDate(value).days) : std::nullopt;
}

/// Of "." and "," the last one separates decimals, unless a "#" is behind it ("#.##0"), which would be
/// senseless for decimals. Any other separates thousands.
QString numberInPattern(double number, const QString& pattern) {
    const qsizetype last = std::max(pattern.lastIndexOf(u'.'), pattern.lastIndexOf(u','));
    const bool hasDecimals = last >= 0 && !pattern.sliced(last).contains(u'#');
    const qsizetype whole = hasDecimals ? last : pattern.size();
    const bool isGrouped = QStringView(pattern).first(whole).contains(u'.');
    return numberText(number, hasDecimals ? static_cast<int>(pattern.size() - last - 1) : 0, isGrouped);
}

/// Qt writes a month as "M" and literals between apostrophes.
QString dateInPattern(QDate day, QString pattern) {
    static const QRegularExpression literal(u"\\\\(.)"_s);
    return day.toString(pattern.replace(u'm', u'M').replace(literal, u"'\\1'"_s));
}

} // namespace

QString Format(const Value& value, const QString& pattern) {
    if (value.isNull()) return {};
    if (pattern.isEmpty()) return CStr(value);

    const bool isForDates = pattern.contains(u'y');
    const auto number = numberIn(value, isForDates);
    if (!number) return CStr(value);
    if (!isForDates) return numberInPattern(*number, pattern);
    const QDate day = Date{*number}.toQDate();
    return day.isValid() ? dateInPattern(day, pattern) : CStr(value);
}
