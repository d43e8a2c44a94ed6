#pragma once

#include <QString>

/// Compacting and repairing the database file.
namespace modTools {

/// The password of the database file.
QString passwort();
/// The connect text with the password of the database file.
QString connectText();

/// Both rewrite the file through temp/uwtmp.mdb. Of a damaged file only the repair makes a new one, with what
/// is left; it keeps the damaged one beside the safety copies.
void KomprimiereDatenbank();
void RepariereDatenbank();

} // namespace modTools
