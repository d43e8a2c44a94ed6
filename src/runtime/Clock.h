#pragma once

#include <QDateTime>

/// The only source of today's date and the time. One at a time is in force for the whole program; the
/// start-up puts the real one there, tests a fixed one.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
};

class SystemClock final : public Clock {
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

/// Puts a clock in force; it must outlive its use. Null puts the system's clock back.
void setClock(const Clock* clock);
QDateTime now();
inline QDate today() { return now().date(); }
