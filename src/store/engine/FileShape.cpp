#include "FileShape.h"

#include "RawContent.h"
#include "RuntimeError.h"
#include "Sqlite.h"
#include "Statement.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QUrl>

namespace engine {

namespace {

constexpr QLatin1String rollbackEnding("-journal");
constexpr QLatin1String logEnding("-wal");
constexpr QLatin1String logIndexEnding("-shm");

/// Opens the file as immutable: SQLite then takes no locks and ignores the journal.
DatabaseHandle openAsItLies(const QString& path) {
    const QByteArray uri = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toEncoded();
    return openHandle(uri + "?immutable=1", SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
}

/// Reads only the first page. Returns false only for a wrong key: other failures show when the file is opened
/// for use.
bool fitsFirstPage(sqlite3* database, const QString& password) {
    setKey(database, password);
    try {
        Statement(database, "PRAGMA user_version").step();
    } catch (const RuntimeError& error) {
        return !error.is(RuntimeError::wrongPassword);
    }
    return true;
}

/// Tries the password on a copy after the journal has restored its first page. A half-written first page fits
/// no key.
bool fitsOnceTakenBack(const QString& path, const RawContent& content, const QString& password) {
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("copy"));
    content.copyTo(copy, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    const QString file = behindLinks(path);
    for (const QLatin1String ending : {rollbackEnding, logEnding})
        if (QFile::exists(file + ending) && !QFile::copy(file + ending, copy + ending))
            throw runtimeError(RuntimeError::noDiskSpace);
    const DatabaseHandle handle = openHandle(copy.toUtf8(), SQLITE_OPEN_READWRITE);
    return fitsFirstPage(handle.get(), password) && QFileInfo(copy).size() > 0;
}

} // namespace

QString behindLinks(const QString& path) {
    const QString file = QFileInfo(path).canonicalFilePath();
    return file.isEmpty() ? path : file;
}

void requireReadableFile(const QString& path) {
    const QFileInfo file(path);
    if (!file.exists()) throw runtimeError(RuntimeError::databaseNotFound, path);
    // Not tried by opening it: closing it again would drop the locks that this process holds on the file.
    if (!file.isFile() || !file.isReadable()) throw runtimeError(RuntimeError::cannotOpen, path);
}

void requirePages(const QString& path, qint64 fewest) {
    const qint64 size = QFileInfo(path).size();
    if (size < fewest * pageBytes || size % pageBytes != 0)
        throw runtimeError(RuntimeError::damagedFile, path);
}

QStringList journalsOf(const QString& path) {
    const QString file = behindLinks(path);
    return {file + rollbackEnding, file + logEnding, file + logIndexEnding};
}

bool isInterrupted(const QString& path) {
    const QString file = behindLinks(path);
    if (QFileInfo(file).size() == 0) return false;
    return QFileInfo(file + rollbackEnding).size() > 0 || QFile::exists(file + logEnding);
}

void requireKeyOfInterrupted(const QString& path, const QString& password) {
    const DatabaseHandle handle = openAsItLies(path);
    if (fitsFirstPage(handle.get(), password)) return;
    if (!fitsOnceTakenBack(path, RawContent(handle.get()), password))
        throw runtimeError(RuntimeError::wrongPassword);
}

} // namespace engine
