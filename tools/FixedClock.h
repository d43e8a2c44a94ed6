#pragma once

#include "Clock.h"

/// Stands still at noon of one day. It is the program's clock while it lives.
class FixedClock final : public Clock {
public:
    FixedClock()
        : m_before(setClock(this)) {}
    ~FixedClock() override { setClock(m_before); }
    FixedClock(const FixedClock&) = delete;
    FixedClock& operator=(const FixedClock&) = delete;

    QDateTime now() const override { return {m_day, QTime(12, 0)}; }
    QDate day() const { return m_day; }
    void setDay(QDate day) { m_day = day; }

private:
    const Clock* m_before;
    QDate m_day{2026, 3, 14};
};
