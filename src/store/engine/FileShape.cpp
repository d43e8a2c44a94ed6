#include "FileShape.h"

#include "RuntimeError.h"

#include <QFileInfo>

namespace engine {

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

void requireContent(const QString& path) {
    if (QFileInfo(path).size() == 0) throw runtimeError(RuntimeError::damagedFile, path);
}

void requireWholePages(const QString& path) {
    if (QFileInfo(path).size() % pageBytes != 0) throw runtimeError(RuntimeError::damagedFile, path);
}

void requirePages(const QString& path, qint64 pages) {
    if (QFileInfo(path).size() < pages * pageBytes) throw runtimeError(RuntimeError::damagedFile, path);
}

} // namespace engine
