#pragma once

#include <QString>
#include <sqlite3.h>

/// The database file through the bare C API, with as much memory for its pages as the program gives it: what
/// everything is held against.
class RawFile {
public:
    /// Works the key out and reads the first page.
    explicit RawFile(const QString& path);
    ~RawFile() { sqlite3_close(m_handle); }
    RawFile(const RawFile&) = delete;
    RawFile& operator=(const RawFile&) = delete;

    sqlite3* handle() const { return m_handle; }
    /// Aborts the benchmark with the library's words if a statement fails.
    void execute(const char* sql);
    sqlite3_stmt* prepare(const QByteArray& sql);

private:
    void check(int code) const;
    sqlite3* m_handle = nullptr;
};
