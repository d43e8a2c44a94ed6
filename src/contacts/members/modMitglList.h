#pragma once

#include <QString>

/// The list of members.
namespace modMitglList {

/// Runs the query of the ticked filters and fills the grid.
void LadeAuswahl();
/// True if the ticked date filters are filled and every date is valid, otherwise shows a message box. A
/// filter passes with its first comparison alone.
bool PruefeMListEingabe();
/// Resets all filters and empties the grid and the description.
void LeereMListAnzeige();

/// Shows the contact of a row, read-only.
void zeigeKontakt(int row);
/// The same for the row on which the context menu was opened.
void mnuMitglInfo_Click();

// Print ("drucken") or preview ("vorschau") the grid.
void DruckeMitglListe(const QString& wort); ///< as the list of addresses
void DruckeArbListe(const QString& wort);   ///< as the overview of hours

} // namespace modMitglList
