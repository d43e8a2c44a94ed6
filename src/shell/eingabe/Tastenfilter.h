#pragma once

namespace modRun {

// Filters for the characters typed into a text box. Each returns the character code, or 0 to refuse the
// character with a beep.
int FilterZiffern(int code); ///< digits
int FilterKomma(int code);   ///< digits and comma
int FilterTelefon(int code); ///< digits, minus, space
int FilterDatum(int code);   ///< digits and point
int FilterSuche(int code);   ///< digits, A to Z, a to z, asterisk, space

} // namespace modRun
