#pragma once

#include <QString>

/// Copies of the database file, in a folder beside it, in case the file is lost.
namespace modSicherung {

/// Copies the file into the folder if it has changed since the last copy. Makes the folder if it is missing.
/// Shows no message box. False if the copy could not be made; true if it was made or not needed.
bool SichereDatenbank();
/// The text that reports a failed copy.
QString Fehlschlag();
/// False if the last copy could not be finished and the open database is damaged. The user has not been told
/// of this yet.
bool DatenbankIstHeil();

} // namespace modSicherung
