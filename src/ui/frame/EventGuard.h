#pragma once

#include "RuntimeError.h"

#include <functional>

/// Runs the handler of a user's event. A run-time error that no routine below has caught has nowhere to go
/// from here: it must not fly through the toolkit's event loop, so it is handed to the failure routine, which
/// tells the user and ends the program. Lack of memory counts as error 7, any other exception as error 440.
/// Without a failure routine the exception flies on.
void runEvent(const std::function<void()>& handler);

/// The program has ended, or begins anew: while ended, handlers are not run any more, whatever the windows on
/// their way out still send.
void setEventsEnded(bool ended);
bool eventsEnded();

/// Thrown where a routine that is still on the stack after the program's end would begin something new; ends
/// that routine and goes no further than the handler it runs in.
struct ProgramEnded {};

/// What to do with an error that nobody caught; put there by the start-up.
void setEventFailure(std::function<void(const RuntimeError&)> failure);

/// Runs the task as soon as no handler is on the stack any more: at once, or when the outermost one has
/// returned. The task must not throw. For what would pull the ground from under a running handler.
void whenNoEventRuns(std::function<void()> task);
