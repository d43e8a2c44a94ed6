#pragma once

#include "Connection.h"
#include "UnfinishedPath.h"

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
