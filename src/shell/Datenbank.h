#pragma once

#include "Recordset.h"

#include <QString>
#include <functional>
#include <vector>

class DataTable;

// The open database, as the routines of all screens use it.

/// The result of a SELECT on the open database, and one of its tables. Errors as for Database::OpenRecordset.
Recordset oeffneAbfrage(const QString& select);
Recordset oeffneTabelle(const QString& name);

/// Appends a grid row for each record that the statement finds, at the start of the program; `routine` stands
/// in the error box.
void fuelleGrid(const QString& routine, DataTable* grid, const QString& select,
                const std::function<std::vector<Value>(const Recordset&)>& zeile);
