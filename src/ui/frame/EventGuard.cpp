#include "EventGuard.h"

#include <new>
#include <utility>
#include <vector>

namespace {

std::function<void(const RuntimeError&)> eventFailure;
std::vector<std::function<void()>> tasksAfterwards;
int handlersOnStack = 0;
bool ended = false;

class HandlerOnStack {
public:
    HandlerOnStack() { ++handlersOnStack; }
    ~HandlerOnStack() {
        if (--handlersOnStack == 0) runTasks();
    }
    HandlerOnStack(const HandlerOnStack&) = delete;
    HandlerOnStack& operator=(const HandlerOnStack&) = delete;

private:
    static void runTasks() {
        const auto tasks = std::exchange(tasksAfterwards, {});
        for (const auto& task : tasks) task();
    }
};

// Call only within a catch clause: without a failure routine it rethrows.
void handOver(const RuntimeError& error) {
    const auto failure = eventFailure;
    if (!failure) throw;
    failure(error);
}

} // namespace

void runEvent(const std::function<void()>& handler) {
    if (ended) return;
    const HandlerOnStack onStack;
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
