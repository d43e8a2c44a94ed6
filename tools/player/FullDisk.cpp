#include "FullDisk.h"

#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <initializer_list>
#include <limits>
#include <sqlite3.h>
#include <string>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace {

int writesLeft = 0;
int writesUntilLost = 0;
bool commitsFail = false;
bool isCommitting = false;
bool isReadOnly = false;
qint64 brokenPlace = -1;
int journalsRemoved = 0;

bool isJournal(int file) {
    std::array<char, PATH_MAX> name{};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t size = ::readlink(link.c_str(), name.data(), name.size());
    return size > 0 && std::string_view(name.data(), static_cast<size_t>(size)).ends_with("-journal");
}

/// True for the first page of a commit: the first write after the journal's last one. Pages written by a
/// rollback come after that page.
bool isFirstOfCommit(int file) {
    const bool journal = isJournal(file);
    return std::exchange(isCommitting, journal) && !journal;
}

ssize_t writeWhileThereIsRoom(int file, const void* bytes, size_t size, off_t place) {
    if (writesUntilLost > 0 && --writesUntilLost == 0) return static_cast<ssize_t>(size);
    const bool hasRoom = commitsFail ? !isFirstOfCommit(file) : --writesLeft > 0;
    if (hasRoom) return ::pwrite(file, bytes, size, place);
    errno = ENOSPC;
    return -1;
}

ssize_t readWhatIsWhole(int file, void* bytes, size_t size, off_t place) {
    const bool isWhole = brokenPlace < place || brokenPlace >= place + static_cast<qint64>(size);
    if (isWhole) return ::pread(file, bytes, size, place);
    errno = EIO;
    return -1;
}

int openAsAllowed(const char* path, int flags, int mode) {
    const bool wantsToWrite = (flags & O_ACCMODE) != O_RDONLY;
    if (!isReadOnly || !wantsToWrite) return ::open(path, flags, mode);
    errno = EACCES;
    return -1;
}

int removeCounted(const char* path) {
    if (std::string_view(path).ends_with("-journal")) ++journalsRemoved;
    return ::unlink(path);
}

template<typename Function>
void replaceCall(const char* name, Function* function) {
    sqlite3_vfs* files = sqlite3_vfs_find(nullptr);
    files->xSetSystemCall(files, name, reinterpret_cast<sqlite3_syscall_ptr>(function));
}

} // namespace

void fillDiskAtWrite(int place) {
    writesLeft = place;
    commitsFail = false;
    for (const char* call : {"pwrite", "pwrite64"}) replaceCall(call, &writeWhileThereIsRoom);
}

void fillDiskAtCommits() {
    emptyDisk();
    commitsFail = true;
    isCommitting = false;
}

void loseWrite(int place) {
    emptyDisk();
    writesUntilLost = place;
}

void emptyDisk() { fillDiskAtWrite(std::numeric_limits<int>::max()); }

void failReadsAt(qint64 place) {
    brokenPlace = place;
    for (const char* call : {"pread", "pread64"}) replaceCall(call, &readWhatIsWhole);
}

void forbidWriting(bool forbidden) {
    isReadOnly = forbidden;
    replaceCall("open", &openAsAllowed);
}

int takeCommits() { return std::exchange(journalsRemoved, 0); }

void countCommits() { replaceCall("unlink", &removeCounted); }
