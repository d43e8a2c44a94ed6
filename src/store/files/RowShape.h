#pragma once

#include "Schema.h"
#include "Statement.h"

#include <vector>

// Which table a row belongs to when nothing but the row itself is left.

/// The library's own list of tables and their first pages.
const TableSpec& catalogueTable();
/// The library's own list of the numbers that were given out last.
const TableSpec& countersTable();

/// The tables whose rows look most like this one, in the order of the schema; those two lists included. A row
/// as PageReader shows it.
std::vector<const TableSpec*> tablesOfRow(const engine::Statement& row);
