#pragma once

#include "Connection.h"

/// The path of a database file in the making. The destructor removes the file unless keep() was called.
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

/// A database file in the making, written in one transaction. The destructor removes it unless finish() has
/// succeeded.
class UnfinishedFile {
public:
    /// Errors as for UnfinishedPath.
    UnfinishedFile(const QString& path, const QString& password);

    cursors::Connection& connection() { return m_connection; }
    /// Commits, which flushes the file and its entry in the folder to the disk. Then reads the file back,
    /// closes and keeps it. Error 3343 if it can't be read back.
    void finish();

private:
    UnfinishedPath m_path;
    cursors::Connection m_connection;
};
