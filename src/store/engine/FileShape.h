#pragma once

#include <QStringList>

namespace engine {

// Checks to make before a file is opened. SQLite reports a wrong password and damage alike, but the size of
// the file often shows damage. In a file that a killed process was writing to, SQLite takes the half-written
// changes back, from the journal beside the file, before it checks the password.

/// The size of a page in our encrypted files.
constexpr qint64 pageBytes = 1024;

/// The target of a link, else the path itself. SQLite keeps journals beside the target.
QString behindLinks(const QString& path);
/// The paths of the journals that SQLite may keep. None of them need exist.
QStringList journalsOf(const QString& path);

/// Error 3024 if there is no such file, 3051 if it is a folder or may not be read.
void requireReadableFile(const QString& path);
/// Error 3343 if the file has fewer pages or does not end with a whole one.
void requirePages(const QString& path, qint64 fewest = 1);
/// Whether there is a journal of any kind. Until its changes are taken back, the file may have any size but
/// none.
bool isInterrupted(const QString& path);
/// Error 3031 if the password does not open an interrupted file. Changes neither the file nor its journal.
void requireKeyOfInterrupted(const QString& path, const QString& password);

} // namespace engine
