#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

struct sqlite3;

struct DatabaseCloser {
    void operator()(sqlite3* database) const;
};

/// The library's side of an open file.
using DatabaseHandle = std::unique_ptr<sqlite3, DatabaseCloser>;

/// Opens without reading anything yet. The name may be a path or, if the flags say so, a URI.
DatabaseHandle openHandle(const QByteArray& name, int flags);
/// Sets the key for all that is read from then on. Whether it is the right one shows with the first page;
/// only an empty one is refused at once (3031).
void setKey(sqlite3* database, const QString& password);
