#pragma once

#include "Connection.h"

/// Error 3204 if the file exists, 3044 if its folder doesn't.
void requireNewFile(const QString& path);

/// A database file in the making. Unless it is finished, it is removed when this ends.
class UnfinishedFile {
public:
    /// Errors as for requireNewFile.
    UnfinishedFile(const QString& path, const QString& password);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    Connection& connection() { return *m_connection; }
    /// Writes everything to the disk, the folder's entry included, and lets go of the file, which can still
    /// be thrown away.
    void write();
    /// As above, and the file stays.
    void finish();

private:
    void start(const QString& password);
    void discard();

    QString m_path;
    std::optional<Connection> m_connection;
    bool m_finished = false;
};
