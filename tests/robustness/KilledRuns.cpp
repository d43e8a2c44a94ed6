#include "KilledRuns.h"

#include "Connection.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

enum class Death {
    BeforeCall,
    InCall, ///< after half the bytes of a write, or after any other call
};

int callsLeft = 0;
Death kind = Death::BeforeCall;

bool isLast() { return --callsLeft == 0; }

/// Runs the call, or kills the process at the last one. `part` is the part of the call that is done before a
/// death within it.
template<typename Call, typename Part>
auto mortal(Call call, Part part) {
    if (!isLast()) return call();
    if (kind == Death::InCall) part();
    killThisProcess();
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

/// Makes the process kill itself at its call number `place`, counted from 1.
void dieAtFileCall(int place, Death death) {
    callsLeft = place;
    kind = death;
    replaceCall("write", &mortalWrite);
    replaceCall("pwrite", &mortalPwrite);
    replaceCall("pwrite64", &mortalPwrite);
    replaceCall("ftruncate", &mortalTruncate);
    replaceCall("unlink", &mortalUnlink);
}

} // namespace

QString rawKey() { return u"x'"_qs + QString(64, u'7') + u'\''; }

QString answer(cursors::Connection& file, const QByteArray& select) {
    engine::Statement statement = file.prepare(select);
    statement.step();
    return statement.text(0);
}

End inOwnProcess(const std::function<bool()>& work) {
    const pid_t child = fork();
    if (child == 0) _exit(work() ? 0 : 1);
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFSIGNALED(status)) return End::Killed;
    return WEXITSTATUS(status) == 0 ? End::Done : End::Failed;
}

void killThisProcess() { ::kill(getpid(), SIGKILL); }

int killAtEachFileCall(const PreparedRun& run, const std::function<void()>& look) {
    int kills = 0;
    for (const Death death : {Death::BeforeCall, Death::InCall})
        for (int place = 1; run([=] { dieAtFileCall(place, death); }) != End::Done; ++place, ++kills) {
            look();
            if (::testing::Test::HasFatalFailure()) return kills;
        }
    return kills;
}
