#pragma once

#include <QString>

// Work hours: the only place that adds them up and makes a balance of them.

/// The hours a member has worked in a year; 0 without bookings.
double ErmittleStunden(qint32 knr, qint32 jahr);
/// Hours worked less hours owed, rounded to two decimals as they are shown.
double BerechneSaldo(double gearbeitet, double pflicht);
/// Hours are shown in this pattern, and what is shown is what the balance is made of.
QString stundenMuster();
