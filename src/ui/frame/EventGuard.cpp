#include "EventGuard.h"

#include <QScopeGuard>
#include <new>
#include <utility>
#include <vector>

namespace {

std::function<void(const RuntimeError&)> eventFailure;
std::vector<std::function<void()>> tasksAfterwards;
int handlersOnStack = 0;
bool ended = false;

// Call only within a catch clause: without a failure routine it rethrows.
void handOver(const RuntimeError& error) {
    if (!eventFailure) throw;
    // A copy, since the routine may be taken away while it ends the program.
    const auto failure = eventFailure;
    failure(error);
}

} // namespace

void runEvent(const std::function<void()>& handler) {
    if (ended) return;
    ++handlersOnStack;
    const auto tasks = qScopeGuard([] {
        if (--handlersOnStack > 0) return;
        for (const auto& task : std::exchange(tasksAfterwards, {})) task();
    });
    try {
        handler();
    } catch (const ProgramEnded&) {
        // No user is left to be told.
    } catch (const RuntimeError& error) {
        handOver(error);
    } catch (const std::bad_alloc&) {
        handOver(runtimeError(RuntimeError::outOfMemory));
    } catch (const std::exception& error) {
        handOver(runtimeError(RuntimeError::foreignException, QString::fromLocal8Bit(error.what())));
    }
}

void setEventsEnded(bool on) { ended = on; }

bool eventsEnded() { return ended; }

void setEventFailure(std::function<void(const RuntimeError&)> failure) { eventFailure = std::move(failure); }

void whenNoEventRuns(std::function<void()> task) {
    if (handlersOnStack == 0)
        task();
    else
        tasksAfterwards.push_back(std::move(task));
}
