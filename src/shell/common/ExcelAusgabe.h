#pragma once

#include <QString>
#include <functional>
#include <initializer_list>

class DataTable;

// Export of a grid for the spreadsheet program: asks, writes a file, and opens it if the user agrees.

/// Asks whether to write the list and calls `erzeuge`. Shows a message box instead if the answer is no or the
/// grid is empty.
void erzeugeAufWunsch(const DataTable& grid, const QString& frage, const QString& keineDaten,
                      void (*erzeuge)());

/// Writes the file and offers to call `starte`. If writing fails, shows `fehler` and keeps the lines written
/// so far.
void schreibeFuerExcel(const std::function<void()>& schreibe, const QString& fehler, const QString& erfolg,
                       void (*starte)());

/// Opens a file in the spreadsheet program and fits the width of `columns` (such as "A:A") to their contents.
/// Shows a message box if there is no such program.
void zeigeInExcel(const QString& path, std::initializer_list<QString> columns);
