#pragma once

#include <QString>
#include <optional>

// Numbers as a German user reads and writes them.

/// The shortest text of a number with up to 15 significant digits: "12,5", "0,3", "-7", "1E+15", "1E-05".
/// What is no number any more looks as it does in every program of this kind: "1,#INF", "-1,#INF" and
/// "-1,#IND".
QString numberText(double number);
/// As above with a fixed number of decimals, and points between thousands if `isGrouped`. Rounds half away
/// from zero on the decimal text of the number. A number rounded to zero has no minus.
QString numberText(double number, int decimals, bool isGrouped);

/// The number that a text stands for: blanks round it, a sign, one "€" in front or behind, digits, points
/// between digits before the comma, one comma, an exponent ("1e3"). Points are not checked for threes: "1.2"
/// is 12, as users of this kind of program know. Infinite if it is too large for a double; nothing if the
/// text is no number.
std::optional<double> numberFromText(QStringView text);
