#pragma once

#include <QString>

class DataTable;

/// The records of the stocking plan.
namespace modBesatzList {

/// Fills the grid with the plan of Session::AktJahr. A stocking whose fish or water has been deleted has no
/// name there.
void loadTblBList();

/// Saves the entry fields as a new record.
void SpeicherEintrag();
/// Changes the record whose number the screen shows, and its grid row. After a change of the year the record
/// stays in the grid. `row` is its place if the grid has no row of this number.
void UpdateEintrag(int row);
/// Deletes the record whose number the screen shows, and its grid row. `row` is not used.
void LoescheEintrag(int row);
/// Reads the stocking of a grid row and fills the entry fields. Shows a message box if the stocking does not
/// belong to the year in cboBJahr.
void loadEintrag(DataTable* grid, int row);
/// Empties the entry fields. The year stays.
void BesatzAnzeigeLoeschen();
/// True if all fields but the time are filled; false after a message box.
bool BesatzEingabeVollstaendig();

/// Writes the grid to BPLAN.csv and offers to open it.
void ErzeugeBPlanDatei();

/// Prints the grid (`wort` is "drucken") or shows its preview ("vorschau").
void DruckeBPlanListe(const QString& wort);

} // namespace modBesatzList
