#pragma once

struct sqlite3;

namespace engine {

/// Gives a connection our order of texts, our LIKE, and the aggregate that hands on the value of the one row
/// of a sub-select and fails (3354) at a second one.
void registerSqlFunctions(sqlite3* database);

} // namespace engine
