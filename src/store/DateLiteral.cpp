#include "DateLiteral.h"

#include <QList>
#include <algorithm>

namespace {

std::optional<int> readNumber(QStringView text) {
    constexpr qsizetype mostDigits = 4;
    const bool digitsOnly = std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (text.isEmpty() || text.size() > mostDigits || !digitsOnly) return std::nullopt;
    return text.toInt();
}

} // namespace

std::optional<Date> readDateLiteral(QStringView text) {
    QList<int> numbers;
    for (const QStringView part : text.trimmed().split(u'/'))
        if (const auto number = readNumber(part)) numbers += *number;
    if (numbers.size() != 3 || text.count(u'/') != 2) return std::nullopt;
    const QDate day(numbers[2], numbers[0], numbers[1]);
    if (!day.isValid() || day.year() < 100) return std::nullopt;
    return Date::fromQDate(day);
}
