#pragma once

#include <QString>

class DataTable;

/// The record routines of the stocking plan.
namespace modBesatzList {

/// The plan of AktJahr into the grid. A stocking whose fish or water is gone stands there without its name.
void loadTblBList();

/// The entry form as a new record.
void SpeicherEintrag();
/// The entry form over the record whose number the form shows; `row` is its grid row, and stays in the grid
/// also when the year has been changed.
void UpdateEintrag(int row);
/// Deletes the record whose number the form shows; `row` is its grid row.
void LoescheEintrag(int row);
/// Fills the form from the stocking in that row of the grid, if it belongs to the year in cboBJahr.
void loadEintrag(DataTable* grid, int row);
void BesatzAnzeigeLoeschen();
/// True if all but the time is filled; else a box says so.
bool BesatzEingabeVollstaendig();

/// Writes the grid to BPLAN.csv and offers to open it.
void ErzeugeBPlanDatei();
void StarteExcelBPlan();

/// "drucken" or "vorschau".
void DruckeBPlanListe(const QString& wort);

} // namespace modBesatzList
