#pragma once

#include "RuntimeError.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// Feeds one input to the code under test. Aborts if the code breaks a promise.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size);

inline void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}

/// The number of the work's error, 0 if it succeeds. Aborts for an error without a number or a text.
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
