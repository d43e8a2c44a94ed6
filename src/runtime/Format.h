#pragma once

#include "Value.h"

/// Text of a value in a pattern of the classic kind, with German signs in the result.
/// Number patterns: "###0.00" (two decimals, comma; rounded half away from zero on the decimal text of the
/// number), "#.##0" and "#.##0,00" as the report designer writes them (points between thousands).
/// Date patterns: d, dd, m, mm, M, MM, yy, yyyy, with "\" before a sign that stands for itself, such as
/// "\#m\/d\/yyyy\#". A text that is a number or a date is converted first; any other text comes back as it
/// is; Null gives the empty text. A date in a number pattern is its number of days, and a number in a date
/// pattern that day; outside the years 100 to 9999 this is error 6. The empty pattern is CStr.
QString Format(const Value& value, const QString& pattern);
