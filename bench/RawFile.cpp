#define SQLITE_HAS_CODEC 1
#include "RawFile.h"

#include <cstdio>
#include <cstdlib>

RawFile::RawFile(const QString& path) {
    check(sqlite3_open(path.toUtf8().constData(), &m_handle));
    execute("PRAGMA key = 'qx-1987-nkr'; PRAGMA cipher_compatibility = 3; PRAGMA cache_size = -32768; "
            "SELECT COUNT(*) FROM sqlite_master");
}

void RawFile::execute(const char* sql) { check(sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr)); }

sqlite3_stmt* RawFile::prepare(const QByteArray& sql) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(m_handle, sql.constData(), -1, &statement, nullptr));
    return statement;
}

void RawFile::check(int code) const {
    if (code == SQLITE_OK) return;
    std::fprintf(stderr, "%s\n", sqlite3_errmsg(m_handle));
    std::exit(1);
}
