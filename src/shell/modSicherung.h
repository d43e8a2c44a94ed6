#pragma once

#include <QString>

/// Copies of the database file, beside it, for the day on which it is lost.
namespace modSicherung {

/// Copies the file into that folder, which is made if missing, if the file has changed since the last copy.
/// Asks nothing and shows nothing. True if the copy was made or not needed, false if it could not be made.
bool SichereDatenbank();
/// The words for that.
QString Fehlschlag();
/// False if the copy before could not be finished and the open database is damaged: nobody has been told yet.
bool DatenbankIstHeil();

} // namespace modSicherung
