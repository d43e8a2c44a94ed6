#pragma once

#include <QString>

namespace engine {

/// The library's encrypted files consist of pages of this size.
constexpr qint64 pageBytes = 1024;

/// The file itself where the path is a link, else the path: SQLite keeps journals beside the file itself.
QString behindLinks(const QString& path);

// What can be told of a file before its password is tried: a wrong password and damage look the same from
// within, but damage often shows from outside.

/// Error 3024 if there is no such file, 3051 if it is a folder or may not be read.
void requireReadableFile(const QString& path);
/// Error 3343 if the file is empty.
void requireContent(const QString& path);
/// Error 3343 if the file does not end with a whole page.
void requireWholePages(const QString& path);
/// Error 3343 if the file is shorter than its first page says.
void requirePages(const QString& path, qint64 pages);

} // namespace engine
