#include "DateText.h"

#include "Clock.h"
#include "RuntimeError.h"

#include <QLocale>
#include <QRegularExpression>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// A number or the name of a month in a day; the name has no digits.
struct Part {
    int value = 0;
    qsizetype digits = 0;

    bool isName() const { return digits == 0; }
    bool isShort() const { return digits == 1 || digits == 2; }
    bool canBeMonth() const { return isName() || isShort(); }
    bool isFullYear() const { return digits == 4; }
};

/// 1 to 12; 0, which makes no date, if the word names no month.
int monthNamed(const QString& word) {
    if (word.size() < 3) return 0;
    if (word.compare(u"mrz"_s, Qt::CaseInsensitive) == 0) return 3;
    const QLocale german(QLocale::German);
    int month = 12;
    while (month > 0 && !german.monthName(month).startsWith(word, Qt::CaseInsensitive)) --month;
    return month;
}

Part partOf(const QString& text) {
    if (text.front().isLetter()) return {monthNamed(text), 0};
    return {text.toInt(), text.size()};
}

int yearOf(const Part& part) {
    if (part.digits > 2) return part.value;
    return part.value < 30 ? 2000 + part.value : 1900 + part.value;
}

/// Swaps day and month if only that makes a date. A month's name is never taken as day.
QDate dayOf(int year, const Part& month, const Part& day) {
    const QDate asWritten(year, month.value, day.value);
    if (asWritten.isValid() || month.isName()) return asWritten;
    return QDate(year, day.value, month.value);
}

QDate dayOfTwo(const Part& first, const Part& second) {
    if (first.canBeMonth() && second.isFullYear()) return QDate(second.value, first.value, 1);
    if (first.isShort() && second.canBeMonth()) return dayOf(today().year(), second, first);
    return {};
}

QDate dayOfThree(const Part& first, const Part& second, const Part& third) {
    if (!second.canBeMonth() || third.isName()) return {};
    if (first.isFullYear() && third.isShort()) return dayOf(first.value, second, third);
    if (first.isShort()) return dayOf(yearOf(third), second, first);
    return {};
}

/// Invalid if the text is no day. A space alone divides only beside a month's name: 24. Dezember 1970.
QDate dayFromText(const QString& text) {
    static const QString part = u"([0-9]{1,4}|\\p{L}+)"_s;
    static const QString divider = u"(?: ?[./-] ?|(?<=\\p{L}) | (?=\\p{L}))"_s;
    static const QString noOtherDivider = u"(?!.*([./-]).*(?!\\1)[./-])"_s;
    static const QRegularExpression form(u'^' + noOtherDivider + part + divider + part + u"(?:"_s + divider +
                                         part + u"| ?\\.)?$"_s);
    const QRegularExpressionMatch parts = form.match(text);
    if (!parts.hasMatch()) return {};
    const Part first = partOf(parts.captured(2)), second = partOf(parts.captured(3));
    const QString third = parts.captured(4);
    const QDate day = third.isEmpty() ? dayOfTwo(first, second) : dayOfThree(first, second, partOf(third));
    return day.isValid() && day.year() >= 100 ? day : QDate();
}

// Written digit by digit: a list of thousands of birthdays would spend most of its time in Qt's parsing of
// the pattern.

void putDigits(QString& text, int last, int digits, int number) {
    QChar* place = text.data() + last;
    for (; digits > 0; --digits, --place, number /= 10)
        *place = QChar(static_cast<char16_t>(u'0' + number % 10));
}

QString shortForm(QChar divider, int first, int second, int third, int digitsOfThird) {
    QString text(6 + digitsOfThird, divider);
    putDigits(text, 1, 2, first);
    putDigits(text, 4, 2, second);
    putDigits(text, 5 + digitsOfThird, digitsOfThird, third);
    return text;
}

} // namespace

QString dateText(Date date) {
    const QDate day = date.toQDate();
    if (!day.isValid()) throw runtimeError(RuntimeError::overflow);
    const bool hasTime = date.days != std::trunc(date.days);
    const QTime time = hasTime ? date.toQTime() : QTime(0, 0);
    const auto timeText = [&] { return shortForm(u':', time.hour(), time.minute(), time.second(), 2); };

    static const QDate ofTheEmptyDate = Date().toQDate();
    if (day == ofTheEmptyDate) return timeText();
    int year = 0, month = 0, dayOfMonth = 0;
    day.getDate(&year, &month, &dayOfMonth);
    const QString dayText = shortForm(u'.', dayOfMonth, month, year, 4);
    return time == QTime(0, 0) ? dayText : dayText + u' ' + timeText();
}

// The seconds may have four digits, since the routines write the empty date as 00:00:0000.
std::optional<Date> dateFromText(QStringView text) {
    static const QRegularExpression withTime(
        u"^(?:([^:]+) )?([0-9]{1,2}): ?([0-9]{1,2})(?: ?: ?([0-9]{1,4}))?$"_s);
    const QString whole = text.toString().simplified();
    const QRegularExpressionMatch parts = withTime.match(whole);
    const QString dayPart = parts.hasMatch() ? parts.captured(1) : whole;
    const bool isTimeAlone = parts.hasMatch() && dayPart.isEmpty();

    const QDate day = isTimeAlone ? Date().toQDate() : dayFromText(dayPart);
    const QTime time(parts.captured(2).toInt(), parts.captured(3).toInt(), parts.captured(4).toInt());
    if (!day.isValid() || !time.isValid()) return std::nullopt;
    return Date::fromQDate(day, time);
}
