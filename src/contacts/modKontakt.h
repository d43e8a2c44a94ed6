#pragma once

#include <QString>

class DataTable;

/// Contacts and members.
namespace modKontakt {

/// True if the user who is logged in may use the contacts.
bool KontaktZugriff_Erlaubt();

// The screen of a contact.

/// Shows the contact whose number is in column 0 of the row. The screen is modal: returns when it is closed.
void loadKontakt(DataTable* grid, int row);
/// Adds the screen's contact and empties the screen.
void SpeicherKontakt();
/// Writes the screen over the contact that it shows.
void UpdateKontakt();
/// The same for a contact that was opened from the search.
void UpdateSQLKontakt();
void LoescheKontakt();

// The overview.

/// Lists the categories with the counts of their contacts. Call once at the start.
void FuelleKontaktUebersicht();
/// Reads the contacts of a category into the child table of its row. Removes the table if there are none.
void KategorieAufklappen(int row, qint32 kategonr);

/// Sets the annual fee of all members to unpaid.
void ReinitialisiereJB();

// The search.

/// Empties the search. Call before showing it.
void SuchAnzeigeLoeschen();
/// Fills the search's grid with the contacts whose first name, last name or firm begins with the word.
/// Category 0 means all categories. A "*" in the word matches any characters. "?", "#" and brackets keep
/// their meaning in a LIKE pattern; they come only from a pasted word.
void SucheKontakt(const QString& word, qint32 kategonr);

} // namespace modKontakt
