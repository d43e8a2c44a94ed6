#pragma once

#include <QString>

class ComboBox;

/// Categories of contacts. Each write also updates the categories in the contact overview.
namespace modKatego {

/// True for the names of the two categories that make a contact a member. They can be neither changed nor
/// deleted.
bool istSystemkategorie(const QString& name);

/// Fills the grid. Call once at the start.
void loadTblKatego();
/// Fills a list with the categories of the grid, unless it has as many already.
void FuelleKategoCombo(ComboBox* combo);
/// Shows the category of a row for editing. Refuses a system category with a message box.
void loadKatego(int row);
void SpeicherKatego();
/// Writes the name over the category that the screen shows; `row` is its grid row.
void UpdateKatego(int row);
/// Deletes the category that the screen shows, not its contacts; `row` is its grid row.
void LoescheKatego(int row);
void KategoAnzeigeLoeschen();
/// False, after a message box, if the name is empty.
bool KategoEingabeOK();

} // namespace modKatego
