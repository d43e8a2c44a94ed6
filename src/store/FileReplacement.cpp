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

/// Where the platform keeps what was written to a file, or entered in a folder, back until it is told
/// otherwise.
void settle(const QString& path) {
#ifdef Q_OS_UNIX
    const int handle = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0) return;
    ::fsync(handle);
    ::close(handle);
#else
    Q_UNUSED(path)
#endif
}

void settleFolderOf(const QString& path) { settle(QFileInfo(path).absolutePath()); }

/// What a killed process has left may hold what stands nowhere else: it goes out of the way, not away.
void putAside(const QString& journal) {
    if (!QFile::exists(journal)) return;
    const QString aside = journal + QStringLiteral(".alt");
    const bool free = !QFile::exists(aside) || QFile::remove(aside);
    if (!free || !QFile::rename(journal, aside)) throw runtimeError(accessDenied);
}

/// One step, which only leads to a place on the same disk: from another one a copy beside the old file takes
/// it.
std::error_code move(const QString& from, const QString& to) {
    std::error_code failure;
    std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), failure);
    if (failure != std::errc::cross_device_link) return failure;
    const QString beside = to + QStringLiteral(".neu");
    QFile::remove(beside);
    if (QFile::copy(from, beside)) {
        settle(beside);
        std::filesystem::rename(beside.toStdU16String(), to.toStdU16String(), failure);
    }
    QFile::remove(failure ? beside : from);
    return failure;
}

} // namespace

void replaceDatabase(const QString& newFile, const QString& oldFile) {
    for (const QString& journal : journalsOf(oldFile)) putAside(journal);
    settleFolderOf(oldFile);
    if (move(newFile, oldFile)) throw runtimeError(accessDenied);
    settleFolderOf(oldFile);
    settleFolderOf(newFile);
}
