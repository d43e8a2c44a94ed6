#pragma once

struct sqlite3;

namespace engine {

/// Registers our collation, our LIKE and the aggregate for sub-selects used as values. The aggregate returns
/// the value of its only row; a second row is error 3354. Call once for each connection.
void registerSqlFunctions(sqlite3* database);

} // namespace engine
