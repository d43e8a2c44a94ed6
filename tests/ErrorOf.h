#pragma once

#include "RuntimeError.h"

#include <gtest/gtest.h>

/// The number of the error of a statement, 0 if it succeeds.
template<typename Statement>
int errorOf(Statement statement) {
    try {
        statement();
    } catch (const RuntimeError& error) {
        EXPECT_FALSE(error.description.isEmpty());
        return error.number;
    }
    return 0;
}
