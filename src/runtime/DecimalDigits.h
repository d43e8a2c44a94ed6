#pragma once

#include <string>

/// A number as 15 significant decimal digits, which are exact whatever the double went through. So 0.1 + 0.2
/// is 0,3, and 1.005 is halfway between 1,00 and 1,01.
class DecimalDigits {
public:
    /// The number must be finite.
    explicit DecimalDigits(double number);

    /// Never true for zero.
    bool isNegative() const { return m_negative; }
    /// No digits for zero. Otherwise neither the first nor the last is "0".
    const std::string& digits() const { return m_digits; }
    /// The number of digits before the comma, 0 or less if the number begins behind it.
    int integerDigits() const { return m_integerDigits; }
    /// The digit for 10 to the power of `place`: 0 for units, -1 for tenths. "0" outside of digits().
    char digitAt(int place) const;
    /// The number of digits behind the comma, 0 for a whole number.
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
