#pragma once

#include <QString>

/// Categories of contacts. Each write also changes the category level of the contact overview.
namespace modKatego {

/// What stands behind the name of a category that can be neither changed nor deleted, in the grid only.
extern const QString systemMarke;
/// True for the names of the two categories that make a contact a member.
bool istSystemkategorie(const QString& name);

/// Fills the grid once at the start.
void loadTblKatego();
/// Shows the row's category in the mask; refuses a system category. The column plays no part.
void loadKatego(int row, int column);
void SpeicherKatego();
/// Writes the mask over the category that it shows; `row` is its row in the grid.
void UpdateKatego(int row);
/// Deletes the category that the mask shows, not its contacts.
void LoescheKatego(int row);
void KategoAnzeigeLoeschen();
/// False, after the box, while the name is empty.
bool KategoEingabeOK();

} // namespace modKatego
