#pragma once

#include "RuntimeError.h"

#include <gtest/gtest.h>

/// The number of the error that a statement ends with, 0 if it ends well.
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
