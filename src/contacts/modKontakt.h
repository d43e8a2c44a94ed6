#pragma once

#include <QString>

class ComboBox;
class DataTable;

/// Contacts and members.
namespace modKontakt {

/// True if the user who is logged in may use this part.
bool KontaktZugriff_Erlaubt();

/// Fills a list with the categories that stand in the grid of their screen, unless it has as many already.
void FuelleKategoCombo(ComboBox* combo);

// The mask.

/// Reads the contact whose number stands in column 0 of the row into the mask and shows it modally; returns
/// when the mask is closed. The column plays no part.
void loadKontakt(DataTable* grid, int row, int column);
/// 0 disables, 1 enables what writes in the mask, so that a record can be read but not changed.
void SetzeKontaktToolbar(int enabled);
/// What only members have is open for entry only while a member category is chosen. The values stay.
void SetzeMitglFelder();
/// A contact needs a category, a last name and a first name.
bool EingabeKontaktOK();
/// Empties the mask; the tick of the youth group survives.
void KontaktAnzeigeLoeschen();

void SpeicherKontakt();
/// Writes the mask over the contact that it shows.
void UpdateKontakt();
/// The same for a contact that was opened from the search.
void UpdateSQLKontakt();
void LoescheKontakt();

// The overview.

void InitTblKUebers();
void tblKUebersfüllen();
/// The categories with the counts of their contacts; once at the start.
void FuelleKontaktUebersicht();
/// Reads the contacts of a category into its child table, or, while the overview is being filled, only
/// counts them.
void KategorieAufklappen(int row, qint32 kategonr);

/// Sets the annual fee of all members to unpaid.
void ReinitialisiereJB();

// The search.

/// Empties the search before it is shown.
void SuchAnzeigeLoeschen();
/// Fills the search's grid with the contacts whose first name, last name or firm begins with the word;
/// category 0 is all of them. In the word "*" stands for any signs; "?", "#" and brackets, which only a
/// pasted word can hold, mean to the database what they mean in any of its patterns.
void SucheKontakt(const QString& word, qint32 kategonr);

} // namespace modKontakt
