#pragma once

struct sqlite3;

namespace engine {

/// Registers our collation, our LIKE and the function that makes a statement fail with error 3354. Call once
/// for each connection.
void registerSqlFunctions(sqlite3* database);

} // namespace engine
