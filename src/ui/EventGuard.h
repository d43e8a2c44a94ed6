#pragma once

#include "RuntimeError.h"

#include <functional>

/// Runs the handler of a user's event. A run-time error that no routine below has caught has nowhere to go from
/// here: it must not fly through the toolkit's event loop, so it is handed to the failure routine, which tells
/// the user and ends the program.
void runEvent(const std::function<void()>& handler);

/// What to do with an error that nobody caught; put there by the start-up.
void setEventFailure(std::function<void(const RuntimeError&)> failure);
