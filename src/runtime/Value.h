#pragma once

#include <QDate>
#include <QString>
#include <QTime>
#include <utility>
#include <variant>

/// A moment as days since 30 December 1899, the fraction being the time of day. Zero is the empty date.
/// Before that day the whole part counts backwards while the fraction still counts forwards: -1.25 is
/// 29 December 1899 at six in the morning.
struct Date {
    double days = 0;

    /// An invalid QDate gives the empty date.
    static Date fromQDate(QDate date);
    /// As above with a time of day; an invalid time is midnight. Fractions of a second are dropped.
    static Date fromQDate(QDate date, QTime time);
    /// The calendar day; an invalid QDate where the number lies outside the years 100 to 9999.
    QDate toQDate() const;
    /// The time of day to the nearest second; invalid where toQDate is. What rounds up to midnight belongs to
    /// the next day, for toQDate as well.
    QTime toQTime() const;
    bool isEmpty() const { return days == 0; }

    friend bool operator==(Date a, Date b) { return a.days == b.days; }
};

/// What a field of a record, a cell of a grid or a control can hold. Closed on purpose: these six kinds are
/// all that the tables know.
class Value {
public:
    enum class Kind : quint8 { Null, Boolean, Long, Double, Date, Text };

    Value() = default; ///< Null
    Value(bool truth)
        : m_held(truth) {}
    Value(qint32 number)
        : m_held(number) {}
    Value(double number)
        : m_held(number) {}
    Value(Date date)
        : m_held(date) {}
    Value(QString text)
        : m_held(std::move(text)) {}
    Value(const char16_t* text)
        : m_held(QString::fromUtf16(text)) {}
    /// Any other pointer, such as a narrow literal, would silently become the Boolean True.
    template<typename T>
    Value(const T* pointer) = delete;

    Kind kind() const { return static_cast<Kind>(m_held.index()); }
    bool isNull() const { return kind() == Kind::Null; }

    // The bare contents. Asking for another kind than the held one is a fault of the program, not of the
    // data: routines convert with CLng, CStr and their like.
    bool boolean() const { return std::get<bool>(m_held); }
    qint32 number() const { return std::get<qint32>(m_held); }
    double real() const { return std::get<double>(m_held); }
    Date date() const { return std::get<Date>(m_held); }
    const QString& text() const { return std::get<QString>(m_held); }

    friend bool operator==(const Value& a, const Value& b) { return a.m_held == b.m_held; }

private:
    std::variant<std::monostate, bool, qint32, double, Date, QString> m_held;
};
