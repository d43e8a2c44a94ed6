#pragma once

// The characters that a text box accepts. A filter returns the typed code, or 0, at which the box beeps.

namespace modRun {

// Key filters: give the typed code back, or 0, at which the box beeps.
int FilterZiffern(int code); ///< digits
int FilterKomma(int code);   ///< digits and comma
int FilterTelefon(int code); ///< digits, minus, space
int FilterDatum(int code);   ///< digits and point
int FilterSuche(int code);   ///< digits, A to Z, a to z, asterisk, space

} // namespace modRun
