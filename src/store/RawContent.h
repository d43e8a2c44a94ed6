#pragma once

#include <QByteArray>

struct sqlite3;
struct sqlite3_file;

/// The bytes of a database file as they lie on the disk, read through the library that has it open: closing a
/// file of our own would drop the locks of this process on it.
class RawContent {
public:
    /// Reads the file of an open database, whose handle must outlive this. Errors as for a failed read.
    explicit RawContent(sqlite3* database);

    /// In bytes.
    qint64 size() const { return m_size; }
    /// `length` bytes from `offset` on; both must lie within the file.
    QByteArray read(qint64 offset, qsizetype length) const;

private:
    sqlite3_file* m_file = nullptr;
    qint64 m_size = 0;
};
