#include "Tastenfilter.h"

#include <string_view>

namespace modRun {

namespace {

/// Digits, Backspace and the `others` pass.
int pass(int code, std::u32string_view others) {
    const auto typed = static_cast<char32_t>(code);
    const bool digit = typed >= U'0' && typed <= U'9';
    return digit || typed == U'\b' || others.find(typed) != others.npos ? code : 0;
}

} // namespace

int FilterZiffern(int code) { return pass(code, U"\r"); }
int FilterKomma(int code) { return pass(code, U"\r,"); }
int FilterTelefon(int code) { return pass(code, U"- "); }
int FilterDatum(int code) { return pass(code, U"."); }

int FilterSuche(int code) {
    const bool letter = (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z');
    return letter ? code : pass(code, U"* ");
}

} // namespace modRun
