#include "DecimalDigits.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr int significantDigits = 15;

} // namespace

DecimalDigits::DecimalDigits(double number) {
    // Sign, digit, point, 14 digits, and "e-308" at the longest.
    std::array<char, 32> text;
    const auto written = std::to_chars(text.data(), text.data() + text.size(), number,
                                       std::chars_format::scientific, significantDigits - 1);
    const char* first = text.data();
    m_negative = *first == '-';
    if (m_negative) ++first;

    m_digits.assign(1, *first);
    m_digits.append(first + 2, significantDigits - 1);
    const char* exponent = first + 1 + significantDigits + 1;
    if (*exponent == '+') ++exponent;
    std::from_chars(exponent, written.ptr, m_integerDigits);
    ++m_integerDigits;
    normalize();
}

char DecimalDigits::digitAt(int place) const {
    const int index = m_integerDigits - 1 - place;
    return index >= 0 && index < static_cast<int>(m_digits.size()) ? m_digits[static_cast<size_t>(index)]
                                                                   : '0';
}

int DecimalDigits::decimals() const {
    return std::max(0, static_cast<int>(m_digits.size()) - m_integerDigits);
}

void DecimalDigits::roundTo(int decimals) {
    const int kept = m_integerDigits + decimals;
    if (kept >= static_cast<int>(m_digits.size())) return;
    const auto count = static_cast<size_t>(std::max(kept, 0));
    const bool up = kept >= 0 && m_digits[count] >= '5';
    m_digits.resize(count);
    if (up) carryInto(count);
    normalize();
}

/// Adds one to the last of the first `count` digits.
void DecimalDigits::carryInto(size_t count) {
    while (count > 0 && m_digits[count - 1] == '9') --count;
    m_digits.resize(count);
    if (count > 0) {
        ++m_digits[count - 1];
    } else {
        m_digits.assign(1, '1');
        ++m_integerDigits;
    }
}

void DecimalDigits::normalize() {
    m_digits.resize(m_digits.find_last_not_of('0') + 1);
    if (!m_digits.empty()) return;
    m_integerDigits = 0;
    m_negative = false;
}
