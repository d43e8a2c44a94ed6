#pragma once

#include <QString>

/// The evaluation of the catch book.
namespace modFAuswert {

/// Runs the query of the ticked filters and fills the screen.
void LadeAuswahl();
/// Appends the clauses of the ticked filters. Both halves of a bound always stand in the text, so a bound
/// with its upper half empty is refused by the store.
void ErgaenzeSelektion(QString& filter);
/// True if the ticked filters are filled; else a box says so. A bound passes with its lower half alone.
bool AuswahlGueltig();
/// Resets the screen.
void AuswertAnzeigeLoeschen();
/// Opens the catch of the row on which the context menu was asked for.
void mnuFangInfo_Click();

/// Writes the grid to FANG.csv and leads on to the spreadsheet.
void ErzeugeFangDatei();
/// Opens the file in the spreadsheet and asks it to fit the columns.
void StarteExcelFang();
/// Prints ("drucken") or shows ("vorschau") the grid as the catch list.
void DruckeFangListe(const QString& wort);

} // namespace modFAuswert
