#pragma once

#include <QString>
#include <sqlite3.h>

/// The database file through SQLite's C API, the baseline of all benchmarks. Its cache has the size of the
/// program's.
class RawFile {
public:
    /// Derives the key and reads the first page.
    explicit RawFile(const QString& path);
    ~RawFile() { sqlite3_close(m_handle); }
    RawFile(const RawFile&) = delete;
    RawFile& operator=(const RawFile&) = delete;

    sqlite3* handle() const { return m_handle; }
    /// Ends the benchmark with SQLite's message if a statement fails.
    void execute(const char* sql);
    sqlite3_stmt* prepare(const QByteArray& sql);

private:
    void check(int code) const;
    sqlite3* m_handle = nullptr;
};
