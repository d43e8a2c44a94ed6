#pragma once

#include <QStringList>

namespace engine {

// For a file that a killed process was writing to. SQLite takes the half-written changes back, from the
// journal beside the file, before it checks the password.

/// The paths of the journals that SQLite may keep: beside the file itself, not beside a link to it. None of
/// them need exist.
QStringList journalsOf(const QString& path);
/// Whether there is a journal of any kind. Until its changes are taken back, the file may have any size.
bool isInterrupted(const QString& path);
/// Error 3031 if the password does not open the file. Changes neither the file nor its journal.
void requireKeyOfInterrupted(const QString& path, const QString& password);

} // namespace engine
