#include "FullDisk.h"

#include <cerrno>
#include <initializer_list>
#include <sqlite3.h>
#include <unistd.h>

namespace {

int writesLeft = 0;

ssize_t writeWhileThereIsRoom(int file, const void* bytes, size_t size, off_t place) {
    if (--writesLeft > 0) return ::pwrite(file, bytes, size, place);
    errno = ENOSPC;
    return -1;
}

} // namespace

void fillDiskAtWrite(int place) {
    writesLeft = place;
    sqlite3_vfs* files = sqlite3_vfs_find(nullptr);
    for (const char* call : {"pwrite", "pwrite64"})
        files->xSetSystemCall(files, call, reinterpret_cast<sqlite3_syscall_ptr>(&writeWhileThereIsRoom));
}
