#pragma once

#include "RuntimeError.h"

#include <functional>

/// Runs the handler of a user's event. Passes a run-time error that the handler did not catch to the failure
/// routine, which tells the user and ends the program: an exception must not pass through Qt's event loop.
/// Lack of memory counts as error 7, any other exception as error 440. Without a failure routine the
/// exception goes on to the caller.
void runEvent(const std::function<void()>& handler);

/// Call with true at the program's end and with false at a new start. While ended, runEvent() does nothing:
/// windows being destroyed still send events.
void setEventsEnded(bool ended);
bool eventsEnded();

/// Thrown to end a routine that is still on the stack after the program's end and would begin something new.
/// runEvent() catches it.
struct ProgramEnded {};

/// Sets the routine for errors that no handler caught. Set by the start-up.
void setEventFailure(std::function<void(const RuntimeError&)> failure);

/// Runs the task as soon as no handler is on the stack: at once, or when the outermost one has returned. Use
/// it to destroy an object that a running handler may still need. The task must not throw.
void whenNoEventRuns(std::function<void()> task);
