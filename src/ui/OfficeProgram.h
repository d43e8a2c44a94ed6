#pragma once

#include "RuntimeError.h"

/// The object of an office program that is running or, where none is (error 429), of a new one. Any other
/// error of the running one is passed on: a second one would not help.
template<typename Program>
auto runningOrNew(Program& program) {
    constexpr int noObject = 429;
    try {
        return program.running();
    } catch (const RuntimeError& error) {
        if (error.number != noObject) throw;
    }
    return program.start();
}
