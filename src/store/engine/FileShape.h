#pragma once

#include <QString>

namespace engine {

/// The size of a page in our encrypted files.
constexpr qint64 pageBytes = 1024;

/// The target of a link, else the path itself. SQLite keeps journals beside the target.
QString behindLinks(const QString& path);

// Checks to make before the password is tried. SQLite reports a wrong password and damage alike, but the size
// of the file often shows damage.

/// Error 3024 if there is no such file, 3051 if it is a folder or may not be read.
void requireReadableFile(const QString& path);
/// Error 3343 if the file is empty.
void requireContent(const QString& path);
/// Error 3343 if the file does not end with a whole page.
void requireWholePages(const QString& path);
/// Error 3343 if the file is shorter than `pages`, the number of pages in its first page.
void requirePages(const QString& path, qint64 pages);

} // namespace engine
