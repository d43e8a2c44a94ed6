#pragma once

#include <QString>

/// Compacting and repairing the database file.
namespace modTools {

/// The password of the database file.
QString passwort();
/// The connect text with the password of the database file.
QString connectText();

/// Both rewrite the file through temp/uwtmp.mdb; they differ in the words of their messages.
void KomprimiereDatenbank();
void RepariereDatenbank();

} // namespace modTools
