#pragma once

/// Copies of the database file, beside it, for the day on which it is lost.
namespace modSicherung {

/// Copies the file into the program folder's "Sicherung" if there is such a folder and the file has changed
/// since the last copy. Asks nothing and tells nothing: who ends the program wants to go home, and what keeps
/// the copy from being made (a full disk, a damaged file) is told where it keeps the work from being done.
void SichereDatenbank();
/// False if the copy before could not be finished and the open database is damaged: nobody has been told yet.
bool DatenbankIstHeil();

} // namespace modSicherung
