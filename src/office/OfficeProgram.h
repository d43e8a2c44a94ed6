#pragma once

#include "RuntimeError.h"

#include <memory>

/// Reaches an office program on the computer. `Reached` is the interface to the reached program, such as
/// Spreadsheet.
template<typename Reached>
class OfficeProgram {
public:
    virtual ~OfficeProgram() = default;
    /// The running program. Error 429 if none is running.
    virtual std::unique_ptr<Reached> running() = 0;
    /// Starts the program. Error 429 if it is not installed.
    virtual std::unique_ptr<Reached> start() = 0;
};

namespace detail {
template<typename Reached>
OfficeProgram<Reached>*& currentOfficeProgram() {
    static OfficeProgram<Reached>* current = nullptr;
    return current;
}
} // namespace detail

/// Sets the implementation, which must outlive its use. Null: there is no program of this kind.
template<typename Reached>
void setOfficeProgram(OfficeProgram<Reached>* program) {
    detail::currentOfficeProgram<Reached>() = program;
}

/// The running program or, if none is running (error 429), a new one. Passes on any other error of the
/// running one, as starting another would not help. Error 429 if there is no program of this kind.
template<typename Reached>
std::unique_ptr<Reached> runningOrNew() {
    OfficeProgram<Reached>* program = detail::currentOfficeProgram<Reached>();
    if (!program) throw runtimeError(RuntimeError::programNotReached);
    try {
        return program->running();
    } catch (const RuntimeError& error) {
        if (!error.is(RuntimeError::programNotReached)) throw;
    }
    return program->start();
}
