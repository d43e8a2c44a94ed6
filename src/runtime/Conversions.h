#pragma once

#include "Value.h"

// The classic conversions, with German settings whatever the machine's locale is: decimal comma, point for
// thousands, day before month. Null where a value is wanted is error 94, text that is none is 13, a number
// outside the range is 6. Numbers are read and written as NumberText.h tells, dates as DateText.h does.

/// 32-bit whole number; a fraction is rounded half to even. True is -1.
qint32 CLng(const Value& value);
/// 16-bit whole number; a fraction is rounded half to even. True is -1.
qint16 CInt(const Value& value);
/// True is -1, a date its number of days. A text must be a number: one that is a date is error 13 as well.
double CDbl(const Value& value);
/// Text as a German user would write it: "12,5", "24.12.1970", "Wahr"; the empty date is "00:00:00".
QString CStr(const Value& value);
/// Date from a date, a number of days, or a text that IsDate accepts; "00:00:0000" is the empty date.
/// A number outside the years 100 to 9999 is error 6.
Date CDate(const Value& value);

/// True for dates and for what a German user types as one: 1.2.05, 01.02.2005, 1.2. (of the current year),
/// also with "-" or "/" between, and times. 31.02. is none. Two-digit years: 00 to 29 are 20xx, 30 to 99
/// 19xx.
bool IsDate(const Value& value);
/// True if CDbl would succeed.
bool IsNumeric(const Value& value);
