#pragma once

#include "ErrorTail.h"
#include "Recordset.h"

#include <array>

class Kontakt;

/// The fields of the contact mask on their way to and from the tables `Kontakt` and `Mitglied`.
namespace KontaktFelder {

/// True while the mask's category is one of those that make a contact a member.
bool istMitglied(const Kontakt& screen);

/// Everything but the category, into the copy buffer.
void schreibeKontakt(ErrorTail& step, Recordset& kontakt, const Kontakt& screen);
/// The six fields of a member, into the copy buffer.
void schreibeMitglied(ErrorTail& step, Recordset& mitglied, const Kontakt& screen);

void zeigeKontakt(ErrorTail& step, const Recordset& kontakt, Kontakt& screen);
void zeigeMitglied(ErrorTail& step, const Recordset& mitglied, Kontakt& screen);

/// The mask as a row of the overview: the number, the picture's place left empty, and what stands typed.
std::array<Value, 10> alsZeile(const Kontakt& screen);

} // namespace KontaktFelder
