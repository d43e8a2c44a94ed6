#pragma once

#include <QString>

class DataTable;
class ErrorTail;
class ProgressBar;
class Recordset;

/// The record routines of the catch book.
namespace modFangbuch {

/// Stores the input fields as a new record.
void SpeicherFang();
/// Writes the input fields over the record whose number the screen shows; `row` is its grid row.
void UpdateFang(int row);
/// Deletes the record whose number the screen shows; `row` is its grid row.
void LoescheFang(int row);
/// Fills the input fields from the catch in a row of `grid`, the catch book's or the evaluation's. Does not
/// set the year.
void loadFang(DataTable* grid, int row);
void FangAnzeigeLoeschen();
/// True if all input fields but the note are filled, otherwise shows a message box.
bool FangEingabeVollstaendig();

bool FangbuchZugriff_Erlaubt();
/// Number of entries in the year of cboFJahr. Includes those whose fish or water was deleted.
QString Ermittle_DSAnzahl();

/// Fills the catch book's grid with the entries of the session's AktMonatNr and AktJahr.
void loadTblFList(ProgressBar* pb);
/// Appends the catches found by a query to a grid, row by row as they are read. Column `monat` of the query
/// comes to column 3 of the grid, with the month's name.
void fuelleListe(ErrorTail& step, Recordset& liste, DataTable* grid, ProgressBar* pb, std::size_t monat);
} // namespace modFangbuch
