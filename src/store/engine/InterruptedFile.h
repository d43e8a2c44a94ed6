#pragma once

#include <QStringList>

namespace engine {

// A file that a killed process was writing to. The library takes its half-written work back, from the journal
// beside it, before it looks at the password.

/// Where SQLite keeps what is not yet, or no more, in the file: beside the file itself, not beside a link to
/// it. None of them need exist.
QStringList journalsOf(const QString& path);
/// Whether there is a journal, of whatever kind. Until it is taken back the file may have any size.
bool isInterrupted(const QString& path);
/// Error 3031 if the password does not open the file. Changes neither the file nor its journal.
void requireKeyOfInterrupted(const QString& path, const QString& password);

} // namespace engine
