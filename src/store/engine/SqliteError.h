#pragma once

#include "RuntimeError.h"

struct sqlite3;

namespace engine {

/// The last failure on a connection as the error for the user. SQLite's codes get their numbers only here.
RuntimeError sqliteError(sqlite3* database);
/// As above if only the extended code is known.
RuntimeError sqliteError(int extendedCode);
/// As above for a statement that could not be prepared. Error 3078 if the file lacks a table, 3061 if it
/// lacks a field, 3360 if the statement is too complex for SQLite.
RuntimeError prepareError(sqlite3* database);

} // namespace engine
