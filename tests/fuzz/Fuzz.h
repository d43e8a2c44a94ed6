#pragma once

#include "RuntimeError.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// Feeds one input to the code under test. Does not return if the code does what it must not.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size);

inline void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}

/// The number of the error that the work ends with, 0 if it ends well. Nothing but a RuntimeError may escape
/// it, and that must tell the user something.
template<typename Work>
int errorOf(Work work) {
    try {
        work();
    } catch (const RuntimeError& error) {
        require(error.number != 0 && !error.description.isEmpty(), "an error has a number and words");
        return error.number;
    }
    return 0;
}
