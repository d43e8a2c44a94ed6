#pragma once

#include <QString>

class ComboBox;

/// The work ledger.
namespace modArbeit {

/// True if the user who is logged in may use this part.
bool ArbeitsZugriff_Erlaubt();

/// Writes a row with last year's balance for every member who is not exempt, into the current year.
void UebernehmeStunden(qint32 altesJahr);
/// Removes the bookings of the first of January of a year that the clock has left backwards.
void Ueberpruefe_auf_Uebertrag(qint32 altesJahr);

/// Takes the member of a row of the contact search into the ledger.
void UebernehmeKontakt(int row);
/// Takes the member into the ledger on whose row in the member list the menu was opened.
void mnuArbContr_Click();

/// Fills the ledger's grid with the bookings of a member in a year; gives their hours.
double loadTblArbeit(qint32 knr, qint32 jahr);
/// Reads the booking of a row of the ledger's grid into the entry fields.
void loadArbeitsVorgang(int row, int column);
/// The entry fields as a new booking of the member and the year on show.
void SpeicherStunden();
/// The entry fields over the opened booking, which also goes to the year on show; `row` is its grid row.
void UpdateStunden(int row);
/// Deletes the opened booking; `row` is its grid row.
void LoescheStunden(int row);

void LeereArbEingabe();
/// Empties the entry fields if they show a stored booking. A new one that is being typed stays.
void LeereOffenen();
void LeereArbAnzeige();
/// True if there are hours, a member and a date that can be read; else a box says so.
bool PruefeArbEingabe();

/// The hours owed, from the parameters' grid.
void zeigePflichtStd();
/// The balance of the two sums as they stand on the screen.
void zeigeSaldo();

/// Prints ("drucken") or shows ("vorschau") the grid as the member's work sheet.
void DruckeArbListe(const QString& wort);

} // namespace modArbeit
