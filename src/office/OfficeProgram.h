#pragma once

#include "RuntimeError.h"

#include <memory>

/// Reaches an office program on the computer. `Reached` is the interface to the reached program, such as
/// Spreadsheet.
template<typename Reached>
class OfficeProgram {
public:
    virtual ~OfficeProgram() = default;
    /// The running program. Error 429 if none is running, as for an office that gives no access to one.
    virtual std::unique_ptr<Reached> running() { throw runtimeError(RuntimeError::programNotReached); }
    /// Starts the program. Error 429 if it is not installed.
    virtual std::unique_ptr<Reached> start() = 0;
};

/// The implementation. Set one that outlives its use. Null: there is no program of this kind.
template<typename Reached>
inline OfficeProgram<Reached>* officeProgram = nullptr;

/// The running program or, if none is running (error 429), a new one. Passes on any other error of the
/// running one, as starting another would not help. Error 429 if there is no program of this kind.
template<typename Reached>
std::unique_ptr<Reached> runningOrNew() {
    if (!officeProgram<Reached>) throw runtimeError(RuntimeError::programNotReached);
    try {
        return officeProgram<Reached>->running();
    } catch (const RuntimeError& error) {
        if (!error.is(RuntimeError::programNotReached)) throw;
    }
    return officeProgram<Reached>->start();
}
