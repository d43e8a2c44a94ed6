#pragma once

#include "Value.h"

// The classic conversions, with German settings whatever the computer's locale is: decimal comma, point for
// thousands, day before month. Error 94 for Null where a value is needed, 13 for a text of another form, 6
// for a number outside the range. NumberText.h and DateText.h describe the forms.

/// 32-bit whole number; a fraction is rounded half to even. True is -1.
qint32 CLng(const Value& value);
/// 16-bit whole number; a fraction is rounded half to even. True is -1.
qint16 CInt(const Value& value);
/// True is -1, a date its number of days. A text must be a number: one that is a date is error 13 as well.
double CDbl(const Value& value);
/// Text in German form: "12,5", "24.12.1970", "Wahr". The empty date is "00:00:00".
QString CStr(const Value& value);
/// Date from a date, a number of days, or a text that IsDate accepts; "00:00:0000" is the empty date.
/// A number outside the years 100 to 9999 is error 6.
Date CDate(const Value& value);

/// True for dates and for texts in a form that dateFromText() reads, such as 1.2.05, 01.02.2005, 1.2. (of the
/// current year), with "-" or "/" in place of the points, and times. 31.02. is no date. Two-digit years: 00
/// to 29 are 20xx, 30 to 99 are 19xx.
bool IsDate(const Value& value);
/// True if CDbl would succeed.
bool IsNumeric(const Value& value);
