#pragma once

#include <QDateTime>
#include <functional>

/// The only source of the date and time in the whole program: the system's clock in main(), a fixed one in
/// tests.
using Clock = std::function<QDateTime()>;

/// Sets the clock. Call before now() and today(). Returns the previous clock.
Clock setClock(Clock clock);
QDateTime now();
inline QDate today() { return now().date(); }
