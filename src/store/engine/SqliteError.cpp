#include "SqliteError.h"

#include "Sqlite.h"

#include <optional>

namespace engine {

namespace {

constexpr QByteArrayView markPrefix("uw-error ");

std::optional<RuntimeError> markedError(QByteArrayView message) {
    if (!message.startsWith(markPrefix)) return std::nullopt;
    return runtimeError(message.sliced(markPrefix.size()).toInt());
}

RuntimeError constraintError(int extendedCode) {
    switch (extendedCode) {
    case SQLITE_CONSTRAINT_NOTNULL:
        return {3314, QStringLiteral("Das Feld darf keinen Nullwert enthalten.")};
    default:
        return runtimeError(3022);
    }
}

RuntimeError ioError(int extendedCode) {
    if (extendedCode == SQLITE_IOERR_NOMEM) return runtimeError(7);
    // A file that ends inside a page was cut short. A page that the disk does not give may be read tomorrow.
    if (extendedCode == SQLITE_IOERR_SHORT_READ) return runtimeError(3343);
    return {3043, QStringLiteral("Datenträger- oder Netzwerkfehler.")};
}

/// What were written then would be gone with the file that has no name any more.
RuntimeError readOnlyError(int extendedCode) {
    if (extendedCode != SQLITE_READONLY_DBMOVED) return runtimeError(3027);
    return {3197, QStringLiteral("Die Datenbank wurde inzwischen durch eine andere ersetzt, etwa von einem "
                                 "zweiten Uferwart. Bitte beenden Sie Uferwart und starten Sie es neu.")};
}

RuntimeError reservedError(int extendedCode) {
    return {3000, QStringLiteral("Reservierter Fehler (%1); es gibt keine Meldung für diesen Fehler.")
                      .arg(extendedCode)};
}

/// The library has one code for all that it has no other for; only the message tells more.
RuntimeError plainError(QByteArrayView message) {
    if (auto marked = markedError(message)) return *marked;
    if (message.startsWith("integer overflow")) return runtimeError(6);
    // What a statement does wrong is told in words of its own. Without any, a page could not be decrypted.
    if (message == QByteArrayView(sqlite3_errstr(SQLITE_ERROR))) return runtimeError(3343);
    return reservedError(SQLITE_ERROR);
}

} // namespace

RuntimeError prepareError(sqlite3* database) {
    const int code = sqlite3_extended_errcode(database);
    if ((code & 0xff) != SQLITE_ERROR) return sqliteError(code);
    const QString message = QString::fromUtf8(sqlite3_errmsg(database));
    if (message.startsWith(u"no such table"))
        return runtimeError(3078, message.section(QStringLiteral(": "), 1));
    if (message.startsWith(u"no such column")) return runtimeError(3061, QStringLiteral("1"));
    return runtimeError(3360);
}

RuntimeError sqliteError(int extendedCode) {
    switch (extendedCode & 0xff) {
    case SQLITE_CONSTRAINT:
        return constraintError(extendedCode);
    case SQLITE_IOERR:
        return ioError(extendedCode);
    case SQLITE_FULL:
        return runtimeError(3026);
    case SQLITE_CORRUPT:
        return runtimeError(3343);
    case SQLITE_NOTADB:
        return runtimeError(3031);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return runtimeError(3260);
    case SQLITE_READONLY:
        return readOnlyError(extendedCode);
    // A journal cannot be made where the folder may not be written to.
    case SQLITE_CANTOPEN:
        return runtimeError(3027);
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return runtimeError(3051);
    case SQLITE_NOMEM:
        return runtimeError(7);
    case SQLITE_TOOBIG:
        return runtimeError(3163);
    default:
        return reservedError(extendedCode);
    }
}

RuntimeError sqliteError(sqlite3* database) {
    const int code = sqlite3_extended_errcode(database);
    if ((code & 0xff) == SQLITE_ERROR) return plainError(sqlite3_errmsg(database));
    return sqliteError(code);
}

QByteArray errorMark(int number) { return markPrefix.toByteArray() + QByteArray::number(number); }

} // namespace engine
