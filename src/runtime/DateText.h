#pragma once

#include "Value.h"

#include <optional>

// Dates and times in the German form.

/// "24.12.1970", or with a time "24.12.1970 18:30:00". Day zero gives the time alone, so that the empty date
/// is "00:00:00". Error 6 outside the years 100 to 9999.
QString dateText(Date date);

/// The moment in a text, std::nullopt if it is none. Ignores spaces around it and behind its separators.
///
/// A day is one of
/// - day, month, year: 24.12.1970, 1.2.05, 1-2-2005, 1/2/2005; a year of one or two digits is between
///   1930 and 2029;
/// - day and month of the current year: 1.2. or 1.2;
/// - year, month, day if the year has four digits: 1970-12-24;
/// - month and year if the year has four digits, for the first of the month: 12.1970, Dezember 1970.
/// The month may be a German name or its first letters, three or more: 24. Dezember 1970, 24-Dez-70.
///
/// If the second number can't be the month but the first can, they are swapped: 2/25/2005 is 25 February.
/// Such a text has no other reading, and if it were refused, the program would store no date without any
/// message. The swap does not apply to a day that the month lacks: 31.02. and 13.13.2005 are no dates.
///
/// A time is hours and minutes, with or without seconds, alone or behind a day: 18:30, 24.12.1970 18:30:05.
std::optional<Date> dateFromText(QStringView text);
