#pragma once

#include "Connection.h"

#include <QString>

/// The path of a database file in the making. Unless it is kept, the file is removed when this ends.
class UnfinishedPath {
public:
    /// Error 3204 if the file exists, 3044 if its folder doesn't.
    explicit UnfinishedPath(const QString& path);
    ~UnfinishedPath();
    UnfinishedPath(const UnfinishedPath&) = delete;
    UnfinishedPath& operator=(const UnfinishedPath&) = delete;

    const QString& path() const { return m_path; }
    void keep() { m_kept = true; }

private:
    QString m_path;
    bool m_kept = false;
};

/// A database file in the making, in one transaction. Unless it is finished, it is removed when this ends.
class UnfinishedFile {
public:
    /// Errors as for UnfinishedPath.
    UnfinishedFile(const QString& path, const QString& password);

    cursors::Connection& connection() { return m_connection; }
    /// Writes everything to the disk, the folder's entry included, and lets go of the file, which stays.
    /// Error 3343 if it can't be read there.
    void finish();

private:
    UnfinishedPath m_path;
    cursors::Connection m_connection;
};
