#include "DyingFileCalls.h"

#include <algorithm>
#include <csignal>
#include <sqlite3.h>
#include <unistd.h>

namespace {

int callsLeft = 0;
Death kind = Death::BeforeCall;

bool isLast() { return --callsLeft == 0; }

void die() { ::kill(getpid(), SIGKILL); }

/// The call with its end in it; `part` is as much of the call as is done before a death in its midst.
template<typename Call, typename Part>
auto mortal(Call call, Part part) {
    if (!isLast()) return call();
    if (kind == Death::InCall) part();
    die();
    return call();
}

ssize_t mortalWrite(int file, const void* bytes, size_t size) {
    return mortal([=] { return ::write(file, bytes, size); }, [=] { return ::write(file, bytes, size / 2); });
}

ssize_t mortalPwrite(int file, const void* bytes, size_t size, off_t place) {
    return mortal([=] { return ::pwrite(file, bytes, size, place); },
                  [=] { return ::pwrite(file, bytes, size / 2, place); });
}

int mortalTruncate(int file, off_t size) {
    const auto call = [=] { return ::ftruncate(file, size); };
    return mortal(call, call);
}

int mortalUnlink(const char* path) {
    const auto call = [=] { return ::unlink(path); };
    return mortal(call, call);
}

template<typename Function>
void replaceCall(const char* name, Function* function) {
    sqlite3_vfs* files = sqlite3_vfs_find(nullptr);
    files->xSetSystemCall(files, name, reinterpret_cast<sqlite3_syscall_ptr>(function));
}

} // namespace

void dieAtFileCall(int place, Death death) {
    callsLeft = place;
    kind = death;
    replaceCall("write", &mortalWrite);
    replaceCall("pwrite", &mortalPwrite);
    replaceCall("pwrite64", &mortalPwrite);
    replaceCall("ftruncate", &mortalTruncate);
    replaceCall("unlink", &mortalUnlink);
}
