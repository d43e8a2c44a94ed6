#include "FileReplacement.h"

#include "InterruptedFile.h"
#include "RuntimeError.h"

#include <QFile>
#include <QFileInfo>
#include <filesystem>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

constexpr int accessDenied = 75;

/// Where the platform keeps an entry of a folder back until it is told otherwise.
void settleFolderOf(const QString& path) {
#ifdef Q_OS_UNIX
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const int handle = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return;
    ::fsync(handle);
    ::close(handle);
#else
    Q_UNUSED(path)
#endif
}

/// What a killed process has left may hold what stands nowhere else: it goes out of the way, not away.
void putAside(const QString& journal) {
    if (!QFile::exists(journal)) return;
    const QString aside = journal + QStringLiteral(".alt");
    const bool free = !QFile::exists(aside) || QFile::remove(aside);
    if (!free || !QFile::rename(journal, aside)) throw runtimeError(accessDenied);
}

} // namespace

void replaceDatabase(const QString& newFile, const QString& oldFile) {
    for (const QString& journal : journalsOf(oldFile)) putAside(journal);
    settleFolderOf(oldFile);
    std::error_code failure;
    std::filesystem::rename(newFile.toStdU16String(), oldFile.toStdU16String(), failure);
    if (failure) throw runtimeError(accessDenied);
    settleFolderOf(oldFile);
    settleFolderOf(newFile);
}
