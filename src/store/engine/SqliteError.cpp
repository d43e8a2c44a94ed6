#include "SqliteError.h"

#include "SqlNames.h"
#include "Sqlite.h"

namespace engine {

namespace {

RuntimeError constraintError(int extendedCode) {
    return runtimeError(extendedCode == SQLITE_CONSTRAINT_NOTNULL ? RuntimeError::nullInField
                                                                  : RuntimeError::duplicateKey);
}

RuntimeError ioError(int extendedCode) {
    if (extendedCode == SQLITE_IOERR_NOMEM) return runtimeError(RuntimeError::outOfMemory);
    // A file that ends inside a page was cut short. A page that the disk does not give may be read tomorrow.
    if (extendedCode == SQLITE_IOERR_SHORT_READ) return runtimeError(RuntimeError::damagedFile);
    return runtimeError(RuntimeError::diskFailed);
}

/// SQLITE_READONLY_DBMOVED: another file has this name now. Anything written to the open file would be lost.
RuntimeError readOnlyError(int extendedCode) {
    return runtimeError(extendedCode == SQLITE_READONLY_DBMOVED ? RuntimeError::fileReplaced
                                                                : RuntimeError::readOnly);
}

RuntimeError reservedError(int extendedCode) {
    return runtimeError(RuntimeError::reserved, QString::number(extendedCode));
}

/// SQLITE_ERROR covers all failures without a code of their own. Only the message tells them apart.
RuntimeError plainError(QByteArrayView message) {
    if (message == QByteArrayView(sqlname::tooManyRows)) return runtimeError(RuntimeError::tooManyRows);
    if (message.startsWith("integer overflow")) return runtimeError(RuntimeError::overflow);
    // What a statement does wrong is told in words of its own. Without any, a page could not be decrypted.
    if (message == QByteArrayView(sqlite3_errstr(SQLITE_ERROR)))
        return runtimeError(RuntimeError::damagedFile);
    return reservedError(SQLITE_ERROR);
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
    switch (extendedCode & 0xff) {
    case SQLITE_CONSTRAINT:
        return constraintError(extendedCode);
    case SQLITE_IOERR:
        return ioError(extendedCode);
    case SQLITE_FULL:
        return runtimeError(RuntimeError::noDiskSpace);
    case SQLITE_CORRUPT:
        return runtimeError(RuntimeError::damagedFile);
    case SQLITE_NOTADB:
        return runtimeError(RuntimeError::wrongPassword);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return runtimeError(RuntimeError::lockedByOther);
    case SQLITE_READONLY:
        return readOnlyError(extendedCode);
    // SQLite can't create a journal in a folder without write permission.
    case SQLITE_CANTOPEN:
        return runtimeError(RuntimeError::readOnly);
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return runtimeError(RuntimeError::cannotOpen);
    case SQLITE_NOMEM:
        return runtimeError(RuntimeError::outOfMemory);
    case SQLITE_TOOBIG:
        return runtimeError(RuntimeError::textTooLong);
    default:
        return reservedError(extendedCode);
    }
}

RuntimeError sqliteError(sqlite3* database) {
    const int code = sqlite3_extended_errcode(database);
    if ((code & 0xff) == SQLITE_ERROR) return plainError(sqlite3_errmsg(database));
    return sqliteError(code);
}

} // namespace engine
