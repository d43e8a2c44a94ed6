#pragma once

#include <QString>

/// The evaluation of the catch book.
namespace modFAuswert {

/// Runs the query of the ticked filters and fills the grid and the sums.
void LadeAuswahl();
/// True if the ticked filters are filled, otherwise shows a message box. Number and weight pass with their
/// lower bound alone.
bool AuswahlGueltig();
/// Resets all filters and empties the grid and the sums.
void AuswertAnzeigeLoeschen();
/// Opens the catch of the row on which the context menu was opened.
void mnuFangInfo_Click();

/// Writes the grid to FANG.csv, then offers to open it in the spreadsheet.
void ErzeugeFangDatei();
/// Opens FANG.csv in the spreadsheet and asks it to fit the columns to their contents.
void StarteExcelFang();
/// Prints ("drucken") or previews ("vorschau") the grid as the catch list.
void DruckeFangListe(const QString& wort);

} // namespace modFAuswert
