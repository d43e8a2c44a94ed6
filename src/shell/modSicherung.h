#pragma once

#include <QString>

/// Copies of the database file, beside it, for the day on which it is lost.
namespace modSicherung {

/// Copies the file into the program folder's "Sicherung" if it has changed since the last copy. False if the
/// copy could not be made; the caller tells it.
bool SichereDatenbank();
/// The words for that.
QString Fehlschlag();
/// False if the copy before could not be finished and the open database is damaged: nobody has been told yet.
bool DatenbankIstHeil();

} // namespace modSicherung
