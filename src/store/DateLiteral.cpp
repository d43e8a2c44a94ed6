#include "DateLiteral.h"

#include <QDateTime>
#include <QList>
#include <algorithm>

namespace {

std::optional<int> readNumber(QStringView text) {
    constexpr qsizetype mostDigits = 4;
    const bool digitsOnly = std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (text.isEmpty() || text.size() > mostDigits || !digitsOnly) return std::nullopt;
    return text.toInt();
}

/// Two or three numbers between equal separators; nothing if anything else stands there.
QList<int> readNumbers(QStringView text, QChar separator) {
    QList<int> numbers;
    for (const QStringView part : text.split(separator)) {
        const auto number = readNumber(part);
        if (!number) return {};
        numbers += *number;
    }
    return numbers;
}

int fullYear(QStringView day, int year) {
    const bool twoDigits = day.size() - day.lastIndexOf(u'/') - 1 <= 2;
    if (!twoDigits) return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

QDate readDay(QStringView text) {
    if (text.contains(u'-')) {
        const QList<int> numbers = readNumbers(text, u'-');
        return numbers.size() == 3 ? QDate(numbers[0], numbers[1], numbers[2]) : QDate();
    }
    const QList<int> numbers = readNumbers(text, u'/');
    return numbers.size() == 3 ? QDate(fullYear(text, numbers[2]), numbers[0], numbers[1]) : QDate();
}

QTime readTime(QStringView text) {
    const QList<int> numbers = readNumbers(text, u':');
    if (numbers.size() < 2 || numbers.size() > 3) return {};
    return {numbers[0], numbers[1], numbers.size() == 3 ? numbers[2] : 0};
}

} // namespace

std::optional<Date> readDateLiteral(QStringView text) {
    text = text.trimmed();
    const qsizetype gap = text.indexOf(u' ');
    const QDate day = readDay(gap < 0 ? text : text.first(gap));
    if (!day.isValid() || day.year() < 100) return std::nullopt;
    if (gap < 0) return Date::fromQDate(day);
    const QTime time = readTime(text.sliced(gap).trimmed());
    if (!time.isValid()) return std::nullopt;
    return Date::fromQDate(day, time);
}
