#pragma once

#include "RuntimeError.h"

/// The number of the error that the statement ends in; 0 if it ends well.
template<typename Statement>
int errorNumberOf(Statement statement) {
    try {
        statement();
        return 0;
    } catch (const RuntimeError& error) {
        return error.number;
    }
}
