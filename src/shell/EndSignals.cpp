#include "EndSignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::array signalNumbers = {SIGTERM, SIGHUP};

/// The two ends of a connection. A signal handler may do hardly anything, so it only writes a byte; the event
/// loop waits for the byte at the other end.
std::array<int, 2> ends = {-1, -1};

extern "C" void wakeEventLoop(int /*number*/) {
    const int before = errno;
    [[maybe_unused]] const ssize_t written = ::write(ends[1], "", 1);
    errno = before;
}

void handle(int number, void (*handler)(int)) {
    struct sigaction action = {};
    if (::sigaction(number, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) return;
    action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigaction(number, &action, nullptr);
}

} // namespace

EndSignals::EndSignals() {
    if (::pipe(ends.data()) != 0) return;
    for (const int end : ends) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, notifier, [notifier] {
        notifier->setEnabled(false);
        QCoreApplication::quit();
    });
    for (const int number : signalNumbers) handle(number, &wakeEventLoop);
}

EndSignals::~EndSignals() {
    for (const int number : signalNumbers) handle(number, SIG_DFL);
    for (int& end : ends) ::close(std::exchange(end, -1));
}
