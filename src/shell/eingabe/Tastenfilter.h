#pragma once

// What a text box lets through. A filter gives the typed code back, or 0, at which the box beeps.

namespace modRun {

// Key filters: give the typed code back, or 0, at which the box beeps.
int FilterZiffern(int code); ///< digits
int FilterKomma(int code);   ///< digits and comma
int FilterTelefon(int code); ///< digits, minus, blank
int FilterDatum(int code);   ///< digits and point
int FilterSuche(int code);   ///< digits, A to Z, a to z, asterisk, blank

} // namespace modRun
