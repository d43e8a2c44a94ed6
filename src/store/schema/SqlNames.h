#pragma once

// Names of the collation and functions that SQLite lacks. The dialect writes them into statements;
// engine::registerSqlFunctions() defines them.
namespace sqlname {
inline constexpr char textCollation[] = "uw_text";
inline constexpr char like[] = "uw_like";
inline constexpr char tooManyRows[] = "uw_too_many_rows";
} // namespace sqlname
