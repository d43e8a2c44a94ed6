#pragma once

#include <QDate>
#include <QString>
#include <QTime>
#include <utility>
#include <variant>

/// A moment in days since 30 December 1899; the fraction is the time of day. Zero is the empty date. Before
/// that day the whole part counts backwards but the fraction still forwards: -1.25 is 29 December 1899 at six
/// in the morning.
struct Date {
    double days = 0;

    /// An invalid QDate gives the empty date. Fractions of a second are dropped.
    static Date fromQDate(QDate date, QTime time = QTime(0, 0));
    /// The calendar day. An invalid QDate outside the years 100 to 9999.
    QDate toQDate() const;
    /// The time of day to the nearest second, invalid if toQDate() is. A time rounded up to midnight belongs
    /// to the next day, in toQDate() too.
    QTime toQTime() const;
    bool isEmpty() const { return days == 0; }

    friend bool operator==(Date a, Date b) { return a.days == b.days; }
};

/// The value of a record's field, a grid's cell or a control. These six kinds are all that the tables know.
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

    // The content itself. Asking for another kind than the stored one is a programming error: routines
    // convert with CLng, CStr and the like.
    bool boolean() const { return std::get<bool>(m_held); }
    qint32 number() const { return std::get<qint32>(m_held); }
    double real() const { return std::get<double>(m_held); }
    Date date() const { return std::get<Date>(m_held); }
    const QString& text() const { return std::get<QString>(m_held); }

    friend bool operator==(const Value& a, const Value& b) { return a.m_held == b.m_held; }

private:
    std::variant<std::monostate, bool, qint32, double, Date, QString> m_held;
};
