#include "Tastenfilter.h"

namespace modRun {

namespace {

constexpr int backspace = 8;
constexpr int enter = 13;

bool isDigit(int code) { return code >= '0' && code <= '9'; }

bool isLetter(int code) { return (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z'); }

int passOr0(int code, bool accepted) { return accepted ? code : 0; }

} // namespace

int FilterZiffern(int code) { return passOr0(code, isDigit(code) || code == backspace || code == enter); }

int FilterKomma(int code) {
    return passOr0(code, isDigit(code) || code == backspace || code == enter || code == ',');
}

int FilterTelefon(int code) {
    return passOr0(code, isDigit(code) || code == backspace || code == '-' || code == ' ');
}

int FilterDatum(int code) { return passOr0(code, isDigit(code) || code == backspace || code == '.'); }

int FilterSuche(int code) {
    return passOr0(code, isDigit(code) || isLetter(code) || code == backspace || code == '*' || code == ' ');
}

} // namespace modRun
