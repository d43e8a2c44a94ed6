#include "Value.h"

#include <cmath>

namespace {

constexpr int secondsPerDay = 24 * 60 * 60;
constexpr QDate dayZero = QDate::fromJulianDay(2'415'019);  // 30 December 1899
constexpr QDate firstDay = QDate::fromJulianDay(1'757'585); // 1 January 100
constexpr QDate lastDay = QDate::fromJulianDay(5'373'484);  // 31 December 9999

/// Both invalid outside the calendar.
std::pair<QDate, QTime> momentOf(double days) {
    // Far beyond the year 9999, yet exact as an integer. NaN fails the test too.
    constexpr double reach = 1e7;
    if (!(std::abs(days) < reach)) return {};

    const double whole = std::trunc(days);
    const int second = static_cast<int>(std::lround(std::abs(days - whole) * secondsPerDay));
    const QDate day = dayZero.addDays(static_cast<qint64>(whole) + second / secondsPerDay);
    if (day < firstDay || day > lastDay) return {};
    return {day, QTime::fromMSecsSinceStartOfDay(second % secondsPerDay * 1000)};
}

} // namespace

Date Date::fromQDate(QDate date, QTime time) {
    if (!date.isValid()) return {};
    const double whole = static_cast<double>(dayZero.daysTo(date));
    const int second = time.msecsSinceStartOfDay() / 1000;
    const double fraction = static_cast<double>(second) / secondsPerDay;
    return {whole < 0 ? whole - fraction : whole + fraction};
}

QDate Date::toQDate() const { return momentOf(days).first; }

QTime Date::toQTime() const { return momentOf(days).second; }
