#include "DateText.h"

#include "Clock.h"
#include "RuntimeError.h"

#include <array>
#include <cmath>

namespace {

/// A number or the name of a month; the name has no digits.
struct Part {
    int value = 0;
    qsizetype digits = 0;

    bool isName() const { return digits == 0; }
    bool isShort() const { return digits == 1 || digits == 2; }
    bool canBeMonth() const { return isName() || isShort(); }
    bool isFullYear() const { return digits == 4; }
};

/// The parts of a day or a time. `divider` is the character between them, the same everywhere.
struct Parts {
    std::array<Part, 3> items;
    size_t count = 0;
    QChar divider;
    bool endsInDivider = false;
};

constexpr std::array<QStringView, 12> monthNames = {u"januar",    u"februar", u"märz",     u"april",
                                                    u"mai",       u"juni",    u"juli",     u"august",
                                                    u"september", u"oktober", u"november", u"dezember"};

/// 1 to 12; 0 if the word names no month.
int monthNamed(QStringView word) {
    if (word.size() < 3) return 0;
    if (word.compare(u"mrz", Qt::CaseInsensitive) == 0) return 3;
    for (size_t month = 0; month < monthNames.size(); ++month)
        if (monthNames[month].startsWith(word, Qt::CaseInsensitive)) return static_cast<int>(month) + 1;
    return 0;
}

bool isDigit(QChar sign) { return sign >= u'0' && sign <= u'9'; }
bool isLetter(QChar sign) { return sign.isLetter(); }
bool isBlank(QChar sign) { return sign.isSpace(); }

/// Reads the parts of a text from the front to the end.
class PartReader {
public:
    PartReader(QStringView text, QStringView dividers)
        : m_rest(text)
        , m_dividers(dividers) {}

    std::optional<Parts> read() {
        while (!m_rest.isEmpty())
            if (!readPart() || !readDivider()) return std::nullopt;
        return m_parts;
    }

private:
    QStringView takeWhile(bool (*belongs)(QChar)) {
        qsizetype length = 0;
        while (length < m_rest.size() && belongs(m_rest.at(length))) ++length;
        const auto taken = m_rest.first(length);
        m_rest = m_rest.sliced(length);
        return taken;
    }

    bool readPart() {
        if (m_parts.count == m_parts.items.size()) return false;
        auto& part = m_parts.items[m_parts.count++];
        const auto digits = takeWhile(isDigit);
        part.digits = digits.size();
        if (part.digits > 4) return false;
        part.value = part.isName() ? monthNamed(takeWhile(isLetter)) : digits.toInt();
        return !part.isName() || part.value > 0;
    }

    bool readDivider() {
        const bool blanks = !takeWhile(isBlank).isEmpty();
        m_parts.endsInDivider = !m_rest.isEmpty() && m_dividers.contains(m_rest.front());
        if (!m_parts.endsInDivider) return m_rest.isEmpty() || (blanks && isBesideName());

        if (!m_parts.divider.isNull() && m_parts.divider != m_rest.front()) return false;
        m_parts.divider = m_rest.front();
        m_rest = m_rest.sliced(1).trimmed();
        return true;
    }

    /// A space alone divides only beside a month's name: 24. Dezember 1970.
    bool isBesideName() const {
        return m_parts.items[m_parts.count - 1].isName() || m_rest.front().isLetter();
    }

    QStringView m_rest;
    QStringView m_dividers;
    Parts m_parts;
};

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

/// Invalid if the text is no day.
QDate dayFromText(QStringView text) {
    const auto parts = PartReader(text, u".-/").read();
    if (!parts) return {};
    const auto& [first, second, third] = parts->items;
    if (parts->endsInDivider && (parts->count != 2 || parts->divider != u'.')) return {};

    QDate day;
    if (parts->count == 2) day = dayOfTwo(first, second);
    if (parts->count == 3) day = dayOfThree(first, second, third);
    return day.isValid() && day.year() >= 100 ? day : QDate();
}

/// Invalid if the text is no time. The seconds may have four digits, since the routines write the empty date
/// as 00:00:0000.
QTime timeFromText(QStringView text) {
    const auto parts = PartReader(text, u":").read();
    if (!parts || parts->count < 2 || parts->endsInDivider) return {};
    const auto& [hour, minute, second] = parts->items;
    if (!hour.isShort() || !minute.isShort() || (parts->count == 3 && second.isName())) return {};
    return QTime(hour.value, minute.value, second.value);
}

/// The place where the time begins: behind the last space before the first colon. The text's end if there is
/// no time.
qsizetype timeStart(QStringView text) {
    const auto colon = text.indexOf(u':');
    if (colon < 0) return text.size();
    auto start = colon;
    while (start > 0 && !text.at(start - 1).isSpace()) --start;
    return start;
}

// Written digit by digit: a list of thousands of birthdays would spend most of its time in Qt's parsing of
// the pattern.

void putDigits(QString& text, int last, int digits, int number) {
    QChar* place = text.data() + last;
    for (; digits > 0; --digits, --place, number /= 10)
        *place = QChar(static_cast<char16_t>(u'0' + number % 10));
}

QString shortForm(QDate date) {
    int year = 0, month = 0, day = 0;
    date.getDate(&year, &month, &day);
    QString text(10, u'.');
    putDigits(text, 1, 2, day);
    putDigits(text, 4, 2, month);
    putDigits(text, 9, 4, year);
    return text;
}

QString shortForm(QTime time) {
    QString text(8, u':');
    putDigits(text, 1, 2, time.hour());
    putDigits(text, 4, 2, time.minute());
    putDigits(text, 7, 2, time.second());
    return text;
}

} // namespace

QString dateText(Date date) {
    const QDate day = date.toQDate();
    if (!day.isValid()) throw runtimeError(RuntimeError::overflow);
    const bool hasTime = date.days != std::trunc(date.days);
    const QTime time = hasTime ? date.toQTime() : QTime(0, 0);

    static const QDate ofTheEmptyDate = Date().toQDate();
    if (day == ofTheEmptyDate) return shortForm(time);
    const QString dayText = shortForm(day);
    return time == QTime(0, 0) ? dayText : dayText + u' ' + shortForm(time);
}

std::optional<Date> dateFromText(QStringView text) {
    const auto whole = text.trimmed();
    const auto start = timeStart(whole);
    const auto dayPart = whole.first(start).trimmed();
    const auto timePart = whole.sliced(start);

    QDate day = Date().toQDate();
    QTime time(0, 0);
    if (!dayPart.isEmpty() || timePart.isEmpty()) day = dayFromText(dayPart);
    if (!timePart.isEmpty()) time = timeFromText(timePart);
    if (!day.isValid() || !time.isValid()) return std::nullopt;
    return Date::fromQDate(day, time);
}
