#pragma once

#include "Schema.h"
#include "Statement.h"

#include <vector>

// Finds the table of a row by the row itself, when nothing else is left.

/// SQLite's sqlite_master: tables and their first pages.
const TableSpec& catalogueTable();
/// SQLite's sqlite_sequence: the last numbers given out.
const TableSpec& countersTable();

/// The tables whose fields fit the row best, in the order of the schema, the two above last. `row` comes from
/// PageReader.
std::vector<const TableSpec*> tablesOfRow(const engine::Statement& row);
