#pragma once

#include "DatabaseHandle.h"

#include <QByteArray>
#include <QFileDevice>
#include <functional>

struct sqlite3_file;

namespace engine {

/// The bytes of a database file as they are on the disk, read through SQLite: closing a file of our own would
/// drop the locks of this process on it.
class RawContent {
public:
    /// Reads the file of an open database, whose handle must outlive this. Errors as for a failed read.
    explicit RawContent(sqlite3* database);
    /// Opens a file of whatever content, without its key. Errors: 3024, 3051.
    explicit RawContent(const QString& path);

    /// For a file that this has opened. Keeps other processes from it until this ends. Error 3260 while one
    /// of them uses the file, 3027 if it may only be read.
    void lock();
    /// In bytes.
    qint64 size() const { return m_size; }
    /// `length` bytes from `offset` on; both must lie within the file. Error 3043 if the disk does not give
    /// them.
    QByteArray read(qint64 offset, qsizetype length) const;
    /// Calls `take` for one piece after the other, as long as it returns true.
    bool forEachChunk(const std::function<bool(const QByteArray&)>& take) const;
    /// Writes a file, whole or not at all. Error 3026 if that fails.
    void copyTo(const QString& path, QFileDevice::Permissions permissions) const;

private:
    void learnSize();

    DatabaseHandle m_opened;
    sqlite3_file* m_file = nullptr;
    qint64 m_size = 0;
};

} // namespace engine
