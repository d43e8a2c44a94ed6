#include "FullDisk.h"

#include <cerrno>
#include <fcntl.h>
#include <initializer_list>
#include <limits>
#include <sqlite3.h>
#include <unistd.h>

namespace {

int writesLeft = 0;
bool isReadOnly = false;

ssize_t writeWhileThereIsRoom(int file, const void* bytes, size_t size, off_t place) {
    if (--writesLeft > 0) return ::pwrite(file, bytes, size, place);
    errno = ENOSPC;
    return -1;
}

int openAsAllowed(const char* path, int flags, int mode) {
    const bool wantsToWrite = (flags & O_ACCMODE) != O_RDONLY;
    if (!isReadOnly || !wantsToWrite) return ::open(path, flags, mode);
    errno = EACCES;
    return -1;
}

template<typename Function>
void replaceCall(const char* name, Function* function) {
    sqlite3_vfs* files = sqlite3_vfs_find(nullptr);
    files->xSetSystemCall(files, name, reinterpret_cast<sqlite3_syscall_ptr>(function));
}

} // namespace

void fillDiskAtWrite(int place) {
    writesLeft = place;
    for (const char* call : {"pwrite", "pwrite64"}) replaceCall(call, &writeWhileThereIsRoom);
}

void emptyDisk() { writesLeft = std::numeric_limits<int>::max(); }

void forbidWriting(bool forbidden) {
    isReadOnly = forbidden;
    replaceCall("open", &openAsAllowed);
}
