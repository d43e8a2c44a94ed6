#include "DatabaseHandle.h"

#include "Sqlite.h"
#include "SqliteError.h"
#include "Statement.h"

namespace engine {

void DatabaseCloser::operator()(sqlite3* database) const { sqlite3_close_v2(database); }

DatabaseHandle openHandle(const QByteArray& name, int flags) {
    sqlite3* database = nullptr;
    // The program has one thread. Without mutexes SQLite reads columns much faster.
    const int code = sqlite3_open_v2(name.constData(), &database, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    DatabaseHandle handle(database);
    if (database == nullptr) throw runtimeError(RuntimeError::outOfMemory);
    if (code != SQLITE_OK) throw sqliteError(database);
    sqlite3_extended_result_codes(database, 1);
    constexpr int busyMilliseconds = 1500;
    sqlite3_busy_timeout(database, busyMilliseconds);
    return handle;
}

DatabaseHandle openFile(const QString& path, Access access) {
    const int readWrite = SQLITE_OPEN_READWRITE | (access == Access::Create ? SQLITE_OPEN_CREATE : 0);
    return openHandle(path.toUtf8(), access == Access::ReadOnly ? SQLITE_OPEN_READONLY : readWrite);
}

void setKey(sqlite3* database, const QString& password) {
    // The library takes no empty key.
    if (password.isEmpty()) throw runtimeError(RuntimeError::wrongPassword);
    const QByteArray key = password.toUtf8();
    const int code = sqlite3_key(database, key.constData(), static_cast<int>(key.size()));
    if (code != SQLITE_OK) throw sqliteError(database);
    // A library without encryption would take any key, and write in the clear.
    if (!Statement(database, "PRAGMA cipher_version").step()) throw runtimeError(RuntimeError::noEncryption);
    // SQLCipher 4 has another format of its own; SQLCipher 3 ignores both settings.
    Statement(database, "PRAGMA cipher_compatibility = 3").run();
    // SQLCipher 4 would report each unreadable page on the terminal.
    Statement(database, "PRAGMA cipher_log_level = NONE").run();
}

int changedRows(sqlite3* database) { return sqlite3_changes(database); }

bool isInTransaction(sqlite3* database) { return sqlite3_get_autocommit(database) == 0; }

} // namespace engine
