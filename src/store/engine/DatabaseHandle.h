#pragma once

#include <QString>
#include <memory>

struct sqlite3;

namespace engine {

struct DatabaseCloser {
    void operator()(sqlite3* database) const;
};

/// An open connection to a file. Its end closes the file.
using DatabaseHandle = std::unique_ptr<sqlite3, DatabaseCloser>;

enum class Access : quint8 { ReadWrite, ReadOnly, Create };
/// Opens a file without reading from it. Set the key next.
DatabaseHandle openFile(const QString& path, Access access);
/// As above with SQLite's own flags. The name may be a path or, with SQLITE_OPEN_URI, a URI.
DatabaseHandle openHandle(const QByteArray& name, int flags);
/// Sets the key for everything read from then on. A wrong key shows only when the first page is read. Error
/// 3031 for an empty one.
void setKey(sqlite3* database, const QString& password);

/// The number of rows that the last write changed.
int changedRows(sqlite3* database);
/// Whether a transaction is open.
bool isInTransaction(sqlite3* database);

} // namespace engine
