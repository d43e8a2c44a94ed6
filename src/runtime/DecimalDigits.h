#pragma once

#include <string>

/// A number as the decimal digits that a user takes it for: the 15 significant ones that a double keeps
/// whatever it went through. 0.1 + 0.2 is 0,3 here, and 1.005 lies halfway between 1,00 and 1,01.
class DecimalDigits {
public:
    /// The number must be finite.
    explicit DecimalDigits(double number);

    /// Never true for zero.
    bool isNegative() const { return m_negative; }
    /// Zero has none. Otherwise neither the first nor the last is "0".
    const std::string& digits() const { return m_digits; }
    /// Digits before the comma; 0 or less if the number begins behind it.
    int integerDigits() const { return m_integerDigits; }
    /// The digit worth 10 to the power of `place`: 0 is the units, -1 the tenths. "0" outside the digits.
    char digitAt(int place) const;
    /// Digits behind the comma; 0 for a whole number.
    int decimals() const;

    /// Rounds half away from zero.
    void roundTo(int decimals);

private:
    void carryInto(size_t count);
    void normalize();

    std::string m_digits;
    int m_integerDigits = 0;
    bool m_negative = false;
};
