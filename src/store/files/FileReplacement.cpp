#include "FileReplacement.h"

#include "FileShape.h"
#include "RuntimeError.h"

#include <QFile>
#include <QFileInfo>
#include <filesystem>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

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

QString nameAside(const QString& journal) { return journal + QStringLiteral(".alt"); }

/// The journal of a killed process may hold data that is nowhere else: rename it, don't delete it.
bool putAside(const QString& journal) {
    const QString aside = nameAside(journal);
    const bool free = !QFile::exists(aside) || QFile::remove(aside);
    return free && QFile::rename(journal, aside);
}

/// Moves a file in one step. That works only on one disk: from another disk, the file is first copied beside
/// the target.
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

void replaceDatabase(const QString& newFile, const QString& oldPath) {
    const QString oldFile = engine::behindLinks(oldPath);
    QStringList aside;
    bool done = true;
    for (const QString& journal : engine::journalsOf(oldFile)) {
        if (!QFile::exists(journal)) continue;
        done = done && putAside(journal);
        if (done) aside += journal;
    }
    settleFolderOf(oldFile);
    done = done && !move(newFile, oldFile);
    if (!done) {
        for (const QString& journal : aside) QFile::rename(nameAside(journal), journal);
        QFile::remove(newFile);
        throw runtimeError(RuntimeError::pathFailed);
    }
    settleFolderOf(oldFile);
    settleFolderOf(newFile);
}
