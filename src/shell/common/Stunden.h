#pragma once

#include <QString>

// Sum and balance of work hours. Calculate them nowhere else.

/// The hours worked by contact `knr` in a year; 0 without bookings.
double ErmittleStunden(qint32 knr, qint32 jahr);
/// Hours worked minus hours owed, rounded to two decimals as shown.
double BerechneSaldo(double gearbeitet, double pflicht);
/// The Format pattern for hours. BerechneSaldo() rounds by it, so that a balance equals its shown text.
QString stundenMuster();
