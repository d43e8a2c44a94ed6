#include "SqliteError.h"

#include "SqlNames.h"
#include "Sqlite.h"

#include <array>

namespace engine {

namespace {

struct Meaning {
    int code;
    RuntimeError::Kind kind;
};

/// Extended codes, and primary ones for all others of their kind.
constexpr auto meanings = std::to_array<Meaning>({
    {SQLITE_CONSTRAINT_NOTNULL, RuntimeError::nullInField},
    {SQLITE_CONSTRAINT, RuntimeError::duplicateKey},
    {SQLITE_IOERR_NOMEM, RuntimeError::outOfMemory},
    // A file that ends inside a page was cut short. A page that the disk does not give may be read tomorrow.
    {SQLITE_IOERR_SHORT_READ, RuntimeError::damagedFile},
    {SQLITE_IOERR, RuntimeError::diskFailed},
    {SQLITE_FULL, RuntimeError::noDiskSpace},
    {SQLITE_CORRUPT, RuntimeError::damagedFile},
    {SQLITE_NOTADB, RuntimeError::wrongPassword},
    {SQLITE_BUSY, RuntimeError::lockedByOther},
    {SQLITE_LOCKED, RuntimeError::lockedByOther},
    // Another file has this name now. Anything written to the open file would be lost.
    {SQLITE_READONLY_DBMOVED, RuntimeError::fileReplaced},
    {SQLITE_READONLY, RuntimeError::readOnly},
    // SQLite can't create a journal in a folder without write permission.
    {SQLITE_CANTOPEN, RuntimeError::readOnly},
    {SQLITE_PERM, RuntimeError::cannotOpen},
    {SQLITE_AUTH, RuntimeError::cannotOpen},
    {SQLITE_NOMEM, RuntimeError::outOfMemory},
    {SQLITE_TOOBIG, RuntimeError::textTooLong},
});

/// SQLITE_ERROR covers all failures without a code of their own. Only the message tells them apart.
RuntimeError plainError(QByteArrayView message) {
    if (message == QByteArrayView(sqlname::tooManyRows)) return runtimeError(RuntimeError::tooManyRows);
    if (message.startsWith("integer overflow")) return runtimeError(RuntimeError::overflow);
    // What a statement does wrong is told in words of its own. Without any, a page could not be decrypted.
    if (message == QByteArrayView(sqlite3_errstr(SQLITE_ERROR)))
        return runtimeError(RuntimeError::damagedFile);
    return sqliteError(SQLITE_ERROR);
}

} // namespace

RuntimeError prepareError(sqlite3* database) {
    const int code = sqlite3_extended_errcode(database);
    if ((code & 0xff) != SQLITE_ERROR) return sqliteError(code);
    const QString message = QString::fromUtf8(sqlite3_errmsg(database));
    if (message.startsWith(u"no such table"))
        return runtimeError(RuntimeError::tableNotFound, message.section(QStringLiteral(": "), 1));
    if (message.startsWith(u"no such column"))
        return runtimeError(RuntimeError::missingParameter, QStringLiteral("1"));
    return runtimeError(RuntimeError::tooComplex);
}

RuntimeError sqliteError(int extendedCode) {
    for (const int code : {extendedCode, extendedCode & 0xff})
        for (const Meaning& meaning : meanings)
            if (meaning.code == code) return runtimeError(meaning.kind);
    return runtimeError(RuntimeError::reserved, QString::number(extendedCode));
}

RuntimeError sqliteError(sqlite3* database) {
    const int code = sqlite3_extended_errcode(database);
    if ((code & 0xff) == SQLITE_ERROR) return plainError(sqlite3_errmsg(database));
    return sqliteError(code);
}

} // namespace engine
