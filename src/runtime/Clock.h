#pragma once

#include <QDateTime>

/// The only source of the date and time in the whole program: the system's clock in main(), a fixed one in
/// tests.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
};

class SystemClock final : public Clock {
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

/// Sets the clock, which must outlive its use. Call before now() and today(). Returns the previous clock.
const Clock* setClock(const Clock* clock);
QDateTime now();
inline QDate today() { return now().date(); }
