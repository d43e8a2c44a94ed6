#pragma once

#include <QString>
#include <optional>

class ComboBox;
class DataTable;
class ProgressBar;

/// The record routines of the catch book.
namespace modFangbuch {

/// The entry form as a new record.
void SpeicherFang();
/// The entry form over the record whose number the form shows; `row` is its grid row.
void UpdateFang(int row);
/// Deletes the record whose number the form shows; `row` is its grid row.
void LoescheFang(int row);
/// Fills the form from the catch in that row of that grid (the catch book's or the evaluation's). The year is
/// not part of it.
void loadFang(DataTable* grid, int row);
void FangAnzeigeLoeschen();
/// True if all but the note is filled; else a box says so.
bool FangEingabeVollstaendig();

bool FangbuchZugriff_Erlaubt();
/// Entries of the year in cboFJahr, also those whose fish or water is gone.
QString Ermittle_DSAnzahl();

/// The entries of AktMonatNr of AktJahr into the catch book's grid.
void loadTblFList(ProgressBar* pb);
} // namespace modFangbuch
