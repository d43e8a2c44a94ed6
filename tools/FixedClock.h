#pragma once

#include "Clock.h"

/// A clock that always shows noon of one day. The program's clock from construction to destruction.
class FixedClock {
public:
    FixedClock()
        : m_before(setClock([this] { return QDateTime(m_day, QTime(12, 0)); })) {}
    ~FixedClock() { setClock(m_before); }
    FixedClock(const FixedClock&) = delete;
    FixedClock& operator=(const FixedClock&) = delete;

    QDate day() const { return m_day; }
    void setDay(QDate day) { m_day = day; }

private:
    Clock m_before;
    QDate m_day{2026, 3, 14};
};
