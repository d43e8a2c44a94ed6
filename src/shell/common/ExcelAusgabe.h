#pragma once

#include <QString>
#include <functional>
#include <initializer_list>

class DataTable;

// The way of a list from the screen to the spreadsheet: a question, a file, and on wish the program with it.

/// Asks whether the list is to be written. A no and an empty list end it with a box.
void erzeugeAufWunsch(const DataTable& grid, const QString& frage, const QString& keineDaten,
                      void (*erzeuge)());

/// Writes the file and offers the spreadsheet; any failure ends it with its box. What was written by then
/// stays.
void schreibeFuerExcel(const std::function<void()>& schreibe, const QString& fehler, const QString& erfolg,
                       void (*starte)());

/// Shows a file in the spreadsheet program, each of the columns such as "A:A" as wide as its content. A box
/// says so where there is no such program.
void zeigeInExcel(const QString& path, std::initializer_list<QString> columns);
