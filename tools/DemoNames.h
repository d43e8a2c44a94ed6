#pragma once

#include <span>

class DemoDice;

/// Lists of names for the demo club. Towns, streets and banks are invented; the telephone numbers are from
/// the ranges kept free for films.
namespace DemoNames {

const char16_t* surname(DemoDice& dice);
/// A given name that fits the year of birth.
const char16_t* givenName(DemoDice& dice, bool male, int born);
const char16_t* street(DemoDice& dice);

struct Town {
    const char16_t* postCode;
    const char16_t* name;
};
const Town& town(DemoDice& dice);

struct Bank {
    const char16_t* code;
    const char16_t* name;
};
const Bank& bank(DemoDice& dice);

struct Firm {
    const char16_t* category;
    const char16_t* name;
    const char16_t* note;
};
/// Firms, authorities, newspapers and neighbours, ordered by category.
std::span<const Firm> firms();

/// Offices of the club's board.
std::span<const char16_t* const> offices();

} // namespace DemoNames
