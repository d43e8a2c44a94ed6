#pragma once

#include "ErrorTail.h"
#include "Recordset.h"

#include <array>

class Kontakt;

/// Copies fields between the screen Kontakt and the tables `Kontakt` and `Mitglied`.
namespace KontaktFelder {

/// True if the chosen category makes the contact a member.
bool istMitglied(const Kontakt& screen);

/// Sets all fields but the category in the copy buffer.
void schreibeKontakt(ErrorTail& step, Recordset& kontakt, const Kontakt& screen);
/// Sets the six fields of a member in the copy buffer.
void schreibeMitglied(ErrorTail& step, Recordset& mitglied, const Kontakt& screen);

void zeigeKontakt(ErrorTail& step, const Recordset& kontakt, Kontakt& screen);
void zeigeMitglied(ErrorTail& step, const Recordset& mitglied, Kontakt& screen);

/// The screen's contact as a row of the overview: values as typed, the picture's cell empty.
std::array<Value, 10> alsZeile(const Kontakt& screen);

} // namespace KontaktFelder
