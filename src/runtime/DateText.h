#pragma once

#include "Value.h"

#include <QStringView>
#include <optional>

// Dates and times as a German user reads and writes them.

/// "24.12.1970", with a time "24.12.1970 18:30:00"; on day zero the time alone, so that the empty date is
/// "00:00:00". Error 6 for a moment outside the years 100 to 9999.
QString dateText(Date date);

/// The moment that a text stands for, or nothing. Blanks round it and behind its signs don't matter.
///
/// A day is one of
/// - day, month, year: 24.12.1970, 1.2.05, 1-2-2005, 1/2/2005; a year of one or two digits lies between
///   1930 and 2029;
/// - day and month of the current year: 1.2. or 1.2;
/// - year, month, day if the year has four digits: 1970-12-24;
/// - month and year, which is the first of the month, if the year has four digits: 12.1970, Dezember 1970.
/// The month may be a German name or its first letters, three or more: 24. Dezember 1970, 24-Dez-70.
///
/// Where the second number can't be the month but the first can, they change places: 2/25/2005 is 25
/// February. Such a text has no other reading, and refusing it would mean to store no date at all without a
/// word. It doesn't rescue a day that the month lacks: 31.02. and 13.13.2005 are no dates.
///
/// A time is hours and minutes, with or without seconds, alone or behind a day: 18:30, 24.12.1970 18:30:05.
std::optional<Date> dateFromText(QStringView text);
