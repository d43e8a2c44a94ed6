#pragma once

#include "Recordset.h"

#include <functional>

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

/// Opens a query, runs `gefunden` if it has a row and `leer` if it has none, and closes it. `select` is a
/// statement of the calling routine as well, and may throw. If the query can't be opened, `gefunden` runs.
void liesSatz(ErrorTail& step, const std::function<QString()>& select,
              const std::function<void(Recordset&)>& gefunden, const std::function<void()>& leer = {});

/// A whole routine with its own error handling: passes the record found by `select` to `nimm`, one statement.
/// Calls `leer` if there is none.
void schlageNach(const QString& module, const QString& routine, const std::function<QString()>& select,
                 const std::function<void(const Recordset&)>& nimm, const std::function<void()>& leer = {});

/// Passes the value found by a query such as SELECT COUNT(…) to `nimm`, unless it is Null. Errors go to
/// `step`, as for a statement of the calling routine. False if the value could not be read.
bool leseWert(ErrorTail& step, const QString& select, const std::function<void(const Value&)>& nimm);

/// Appends a grid row for each record found by `select`, with these fields, which `forme` may change. A
/// record that can't be read gets no row. For the start of the program: errors are shown as those of
/// `routine` in modStart.
void fuelleGrid(
    const QString& routine, DataTable* grid, const QString& select, const QStringList& felder,
    void (*forme)(std::vector<Value>& zeile) = [](std::vector<Value>&) {});
