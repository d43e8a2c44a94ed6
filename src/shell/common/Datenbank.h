#pragma once

#include "Recordset.h"

#include <QString>
#include <functional>
#include <vector>

class DataTable;
class ErrorTail;

// The database of the program folder, as the routines of all screens use it.

/// The database file, the folder of its safety copies, and the file's password as such and as a connect text.
QString datenbankDatei();
QString sicherungsOrdner();
QString datenbankPasswort();
QString datenbankVerbindung();

/// Opens the database file. Has no error box of its own: errors go to the caller.
void OeffneDatenbank();
/// Closes it, if it is open.
void SchliesseDatenbank();

/// The result of a SELECT on the open database, and one of its tables. Errors as for Database::OpenRecordset.
Recordset oeffneAbfrage(const QString& select);
Recordset oeffneTabelle(const QString& name);

/// Hands over what a query such as SELECT COUNT(…) finds, as a statement of the calling routine.
void leseWert(ErrorTail& step, const QString& select, const std::function<void(const Value&)>& nimm);

/// Appends a grid row for each record that the statement finds, at the start of the program; `routine` stands
/// in the error box.
void fuelleGrid(const QString& routine, DataTable* grid, const QString& select,
                const std::function<std::vector<Value>(const Recordset&)>& zeile);
