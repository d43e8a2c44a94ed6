#pragma once

#include <QString>
#include <optional>

class ComboBox;
class DataTable;
class ProgressBar;

/// The record routines of the catch book.
namespace modFangbuch {

/// The stocking plan uses it too.
void InitFangbuch();

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
/// Appends a year list. It is not emptied first; a gap between the highest stored year and AktJahr stays a
/// gap, and years before the stored ones stand behind them.
void loadcboFJahr(ComboBox* combo);
/// From the grids of the base data, not from the file.
void loadcboFArt(ComboBox* combo);
void loadcboGName(ComboBox* combo);

/// 0 or the empty text if there is none; the first of several.
qint32 ErmittleFischNr(const QString& name);
QString ErmittleFischname(qint32 number);
qint32 ErmittleGewaesserNr(const QString& name);
QString ErmittleGewaessername(qint32 number);

/// The numbers behind the two combo boxes.
struct Nummern {
    qint32 fisch;
    qint32 gewaesser;
};
/// Nothing, after a box, if the file does not know one of the names.
std::optional<Nummern> ermittleNummern(const ComboBox* art, const ComboBox* gewaesser);

} // namespace modFangbuch
