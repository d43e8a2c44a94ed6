#pragma once

#include "Clock.h"

/// Stands still at noon of one day.
class FixedClock final : public Clock {
public:
    QDateTime now() const override { return {m_day, QTime(12, 0)}; }
    QDate day() const { return m_day; }
    void setDay(QDate day) { m_day = day; }

private:
    QDate m_day{2026, 3, 14};
};
