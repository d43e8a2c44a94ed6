#pragma once

#include "Recordset.h"

#include <QString>
#include <functional>
#include <vector>

class DataTable;
class ErrorTail;

// The database of the program folder, shared by all routines through session().AktDatenbank.

/// Path of the database file, folder of its safety copies, its password, and the password as connect text.
QString datenbankDatei();
QString sicherungsOrdner();
QString datenbankPasswort();
QString datenbankVerbindung();

/// Opens the database file. Shows no message box: throws RuntimeError.
void OeffneDatenbank();
/// Closes the database file. Does nothing if it is not open.
void SchliesseDatenbank();

/// Open the result of a SELECT or a table of the open database. Errors as for Database::OpenRecordset.
Recordset oeffneAbfrage(const QString& select);
Recordset oeffneTabelle(const QString& name);

/// Passes the value found by a query such as SELECT COUNT(…) to `nimm`. Errors go to `step`, as for a
/// statement of the calling routine.
void leseWert(ErrorTail& step, const QString& select, const std::function<void(const Value&)>& nimm);

/// Appends a grid row for each record found by `select`. For the start of the program: errors are shown as
/// those of `routine` in modStart.
void fuelleGrid(const QString& routine, DataTable* grid, const QString& select,
                const std::function<std::vector<Value>(const Recordset&)>& zeile);
