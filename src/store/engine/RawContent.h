#pragma once

#include "DatabaseHandle.h"

#include <QFileDevice>
#include <functional>

struct sqlite3_file;

namespace engine {

/// The bytes of a database file on the disk. They are read through SQLite: closing a file opened by other
/// means would drop this process's locks on it.
class RawContent {
public:
    /// Reads the file of an open database, whose handle must outlive this. Errors as for a failed read.
    explicit RawContent(sqlite3* database);
    /// Opens a file of any content, without its key. Errors: 3024, 3051.
    explicit RawContent(const QString& path);

    /// Keeps other processes from the file until this object ends. Only for a file opened by its path. Error
    /// 3260 if another process uses the file, 3027 if it is read-only.
    void lock();
    /// Size in bytes.
    qint64 size() const { return m_size; }
    /// `length` bytes from `offset` on; both must be within the file. Error 3043 if the disk can't be read.
    QByteArray read(qint64 offset, qsizetype length) const;
    /// Calls `take` for each piece of the file in order, until it returns false. Returns whether all were
    /// taken.
    bool forEachChunk(const std::function<bool(const QByteArray&)>& take) const;
    /// Copies the content to a file, whole or not at all. Error 3026 if that fails.
    void copyTo(const QString& path, QFileDevice::Permissions permissions) const;

private:
    void learnSize();

    DatabaseHandle m_opened;
    sqlite3_file* m_file = nullptr;
    qint64 m_size = 0;
};

} // namespace engine
