#pragma once

/// Compacting and repairing the database file.
namespace modTools {

/// Both write a new file, temp/uwtmp.mdb, and replace the database with it. If the file is damaged,
/// compacting fails. Repairing saves the readable rows and keeps the damaged file in the folder of the safety
/// copies.
void KomprimiereDatenbank();
void RepariereDatenbank();

} // namespace modTools
