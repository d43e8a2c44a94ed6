#pragma once

// The names under which rewritten statements call what SQLite does not have. The dialect writes them, the
// engine gives them their meaning.
namespace sqlname {
inline constexpr char textCollation[] = "uw_text";
inline constexpr char like[] = "uw_like";
inline constexpr char singleValue[] = "uw_single";
} // namespace sqlname
