#include "RawContent.h"

#include "FileShape.h"
#include "Sqlite.h"
#include "SqliteError.h"

#include <QSaveFile>
#include <algorithm>

namespace engine {

namespace {

constexpr qint64 chunk = 1 << 20;

DatabaseHandle openReadable(const QString& path) {
    requireReadableFile(path);
    return openHandle(path.toUtf8(), SQLITE_OPEN_READWRITE);
}

void check(int code) {
    if (code != SQLITE_OK) throw sqliteError(code);
}

} // namespace

RawContent::RawContent(sqlite3* database) {
    sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &m_file);
    learnSize();
}

RawContent::RawContent(const QString& path)
    : m_opened(openReadable(path)) {
    sqlite3_file_control(m_opened.get(), "main", SQLITE_FCNTL_FILE_POINTER, &m_file);
    learnSize();
}

void RawContent::learnSize() {
    sqlite3_int64 size = 0;
    check(m_file->pMethods->xFileSize(m_file, &size));
    m_size = size;
}

void RawContent::lock() {
    if (sqlite3_db_readonly(m_opened.get(), "main") == 1) throw runtimeError(RuntimeError::readOnly);
    for (const int level : {SQLITE_LOCK_SHARED, SQLITE_LOCK_RESERVED, SQLITE_LOCK_EXCLUSIVE})
        check(m_file->pMethods->xLock(m_file, level));
    // Another process may have written before the lock.
    learnSize();
}

QByteArray RawContent::read(qint64 offset, qsizetype length) const {
    QByteArray bytes(length, '\0');
    if (length == 0) return bytes;
    check(m_file->pMethods->xRead(m_file, bytes.data(), static_cast<int>(length), offset));
    return bytes;
}

bool RawContent::forEachChunk(const std::function<bool(const QByteArray&)>& take) const {
    for (qint64 offset = 0; offset < m_size; offset += chunk)
        if (!take(read(offset, std::min(chunk, m_size - offset)))) return false;
    return true;
}

void RawContent::copyTo(const QString& path, QFileDevice::Permissions permissions) const {
    QSaveFile copy(path);
    bool whole = copy.open(QIODevice::WriteOnly);
    // Set permissions while the copy is empty. Ignore failures: a USB stick may know no permissions.
    copy.setPermissions(permissions);
    whole = whole && forEachChunk([&](const QByteArray& bytes) { return copy.write(bytes) == bytes.size(); });
    if (!whole || !copy.commit()) throw runtimeError(RuntimeError::noDiskSpace);
}

} // namespace engine
