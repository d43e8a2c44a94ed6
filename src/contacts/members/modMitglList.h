#pragma once

#include <QString>

/// The list of members.
namespace modMitglList {

/// Runs the query of the ticked filters and fills the grid.
void LadeAuswahl();
/// The query with the clauses of the ticked filters behind it. Both halves of a date filter always stand in
/// the text, so one with its second half empty is refused by the store.
QString ErstelleFilter(const QString& sql);
/// True if the ticked date filters are filled and every date is one; else a box says so. A filter passes with
/// its first half alone.
bool PruefeMListEingabe();
/// Resets the screen.
void LeereMListAnzeige();

/// Opens the contact of a row to be read.
void zeigeKontakt(int row);
/// The same for the row on which the context menu was asked for.
void mnuMitglInfo_Click();

// Print ("drucken") or show ("vorschau") the grid.
void DruckeMitglListe(const QString& wort); ///< as the list of addresses
void DruckeArbListe(const QString& wort);   ///< as the overview of hours

} // namespace modMitglList
