#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

struct sqlite3;

namespace engine {

struct DatabaseCloser {
    void operator()(sqlite3* database) const;
};

/// The library's side of an open file.
using DatabaseHandle = std::unique_ptr<sqlite3, DatabaseCloser>;

enum class Access : quint8 { ReadWrite, ReadOnly, Create };
/// Opens the file of this path without reading anything yet.
DatabaseHandle openFile(const QString& path, Access access);
/// Opens without reading anything yet. The name may be a path or, if the flags say so, a URI.
DatabaseHandle openHandle(const QByteArray& name, int flags);
/// Sets the key for all that is read from then on. Whether it is the right one shows with the first page;
/// only an empty one is refused at once (3031).
void setKey(sqlite3* database, const QString& password);

/// How many rows the last write touched.
int changedRows(sqlite3* database);
/// Whether a transaction has been begun and not ended yet.
bool isInTransaction(sqlite3* database);

} // namespace engine
