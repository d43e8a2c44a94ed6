#include "RawContent.h"

#include "Sqlite.h"
#include "SqliteError.h"

RawContent::RawContent(sqlite3* database) {
    sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &m_file);
    sqlite3_int64 size = 0;
    if (const int code = m_file->pMethods->xFileSize(m_file, &size); code != SQLITE_OK)
        throw sqliteError(code);
    m_size = size;
}

QByteArray RawContent::read(qint64 offset, qsizetype length) const {
    QByteArray bytes(length, '\0');
    if (length == 0) return bytes;
    const int code = m_file->pMethods->xRead(m_file, bytes.data(), static_cast<int>(length), offset);
    if (code != SQLITE_OK) throw sqliteError(code);
    return bytes;
}
