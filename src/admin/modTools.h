#pragma once

/// Compacting and repairing the database file.
namespace modTools {

/// Both rewrite the file through temp/uwtmp.mdb. Of a damaged file only the repair makes a new one, with what
/// is left; it keeps the damaged one beside the safety copies.
void KomprimiereDatenbank();
void RepariereDatenbank();

} // namespace modTools
