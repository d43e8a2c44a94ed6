#pragma once

#include <QStringList>

class CsvDatei;
class DataTable;

// Export of a grid to a file in the folder SeqData for the spreadsheet program: asks, writes the file, and
// opens it if the user agrees.

/// Asks whether to write `daten` to the file and calls `erzeuge`. Shows a message box instead if the answer
/// is no or the grid is empty.
void erzeugeAufWunsch(const DataTable& grid, const QString& datei, const QString& daten, void (*erzeuge)());

/// Writes the file and offers to call `starte`. If writing fails, shows a message box that names the `liste`,
/// and keeps the lines written so far.
void schreibeFuerExcel(const DataTable& grid, const QString& datei, const QString& liste,
                       const QStringList& koepfe,
                       void (*schreibeZeile)(CsvDatei& datei, const DataTable& grid, int row),
                       void (*starte)());

/// Opens the file in the spreadsheet program and fits the width of its first columns to their contents. Shows
/// a message box if there is no such program.
void zeigeInExcel(const QString& datei, int columns);
