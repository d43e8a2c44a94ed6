#include "Value.h"

#include <cmath>
#include <optional>

namespace {

constexpr int secondsPerDay = 24 * 60 * 60;
constexpr QDate dayZero = QDate::fromJulianDay(2'415'019);  // 30 December 1899
constexpr QDate firstDay = QDate::fromJulianDay(1'757'585); // 1 January 100
constexpr QDate lastDay = QDate::fromJulianDay(5'373'484);  // 31 December 9999

struct Moment {
    QDate day;
    int second;
};

std::optional<Moment> momentOf(double days) {
    // Far beyond the year 9999, yet exact as an integer. NaN fails the test too.
    constexpr double reach = 1e7;
    if (!(std::abs(days) < reach)) return std::nullopt;

    const double whole = std::trunc(days);
    const int second = static_cast<int>(std::lround(std::abs(days - whole) * secondsPerDay));
    const QDate day = dayZero.addDays(static_cast<qint64>(whole) + second / secondsPerDay);
    if (day < firstDay || day > lastDay) return std::nullopt;
    return Moment{day, second % secondsPerDay};
}

} // namespace

Date Date::fromQDate(QDate date, QTime time) {
    if (!date.isValid()) return {};
    const double whole = static_cast<double>(dayZero.daysTo(date));
    const double fraction = static_cast<double>(time.msecsSinceStartOfDay() / 1000) / secondsPerDay;
    return {whole < 0 ? whole - fraction : whole + fraction};
}

QDate Date::toQDate() const {
    const auto moment = momentOf(days);
    return moment ? moment->day : QDate();
}

QTime Date::toQTime() const {
    const auto moment = momentOf(days);
    return moment ? QTime::fromMSecsSinceStartOfDay(moment->second * 1000) : QTime();
}
