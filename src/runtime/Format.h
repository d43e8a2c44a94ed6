#pragma once

#include "Value.h"

/// The text of a value in a classic pattern, with German separators in the result.
///
/// Number patterns: "###0.00" (two decimals behind a comma, rounded half away from zero on the decimal text
/// of the number), "#.##0" and "#.##0,00" as the report designer writes them (points between thousands).
///
/// Date patterns have a year: d, dd, m, mm, M, MM, yy, yyyy. "\" makes the next character a literal, as in
/// "\#m\/d\/yyyy\#".
///
/// A text that is a number or a date is converted first. Any other text is returned unchanged, Null as the
/// empty text. In a number pattern a date is its number of days; in a date pattern a number is a day, and
/// unchanged outside the years 100 to 9999. The empty pattern gives CStr().
QString Format(const Value& value, const QString& pattern);
