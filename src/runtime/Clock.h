#pragma once

#include <QDateTime>

/// The only source of today's date and the time, one for the whole program: the real one in main(), a fixed
/// one in tests.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
};

class SystemClock final : public Clock {
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

/// Sets the clock, to be done before now() and today(); it must outlive its use. Returns the one before.
const Clock* setClock(const Clock* clock);
QDateTime now();
inline QDate today() { return now().date(); }
