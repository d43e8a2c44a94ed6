#pragma once

struct sqlite3;

// The names under which the rewritten statements call what the library does not have.
namespace sqlname {
inline constexpr char textCollation[] = "uw_text";
inline constexpr char like[] = "uw_like";
inline constexpr char singleValue[] = "uw_single";
} // namespace sqlname

/// Gives a connection our order of texts, our LIKE, and the aggregate that hands on the value of the one row
/// of a sub-select and fails (3354) at a second one.
void registerSqlFunctions(sqlite3* database);
