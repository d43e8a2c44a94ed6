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
    /// Makes another file's tables readable under the name `original`. Before anything is written.
    void attach(const QString& path, const QString& password);
    /// Writes everything to the disk, the folder's entry included, and forgets it, so that it is read from
    /// there again. The file can still be thrown away.
    void write();
    /// Error 3343 if what was written can't be read.
    void verify();
    /// Writes what is not yet written and lets go of the file, which stays.
    void finish();

private:
    void start(const QString& password);
    void discard();

    QString m_path;
    std::optional<Connection> m_connection;
    bool m_written = false;
    bool m_finished = false;
};
