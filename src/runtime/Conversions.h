#pragma once

#include "Value.h"

// The classic conversions, with German settings whatever the machine's locale is: decimal comma, point for
// thousands, day before month. Null where a value is wanted is error 94, text that is none is 13, a number
// outside the range is 6.

/// 32-bit whole number; a fraction is rounded half to even.
qint32 CLng(const Value& value);
/// 16-bit whole number; a fraction is rounded half to even.
qint16 CInt(const Value& value);
double CDbl(const Value& value);
/// Text as a German user would write it: "12,5", "24.12.1970", "Wahr"; the empty date is "00:00:00".
QString CStr(const Value& value);
/// Date from a date, a number of days, or a text that IsDate accepts; "00:00:0000" is the empty date.
Date CDate(const Value& value);

/// True for dates and for what a German user types as one: 1.2.05, 01.02.2005, 1.2. (of the current year),
/// also with "-" or "/" between, and times. 31.02. is none. Two-digit years: 00 to 29 are 20xx, 30 to 99 19xx.
bool IsDate(const Value& value);
/// True if CDbl would succeed.
bool IsNumeric(const Value& value);
