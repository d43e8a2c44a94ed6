#pragma once

#include "RuntimeError.h"

#include <memory>

/// The way to an office program of the machine. Reached is what the routines ask of one that has been
/// reached, such as Spreadsheet.
template<typename Reached>
class OfficeProgram {
public:
    virtual ~OfficeProgram() = default;
    /// The one that is running; error 429 if none is.
    virtual std::unique_ptr<Reached> running() = 0;
    /// A new one; error 429 if there is none on the machine.
    virtual std::unique_ptr<Reached> start() = 0;
};

namespace detail {
template<typename Reached>
OfficeProgram<Reached>*& currentOfficeProgram() {
    static OfficeProgram<Reached>* current = nullptr;
    return current;
}
} // namespace detail

/// Sets the implementation; it must outlive its use. With null there is none of this kind.
template<typename Reached>
void setOfficeProgram(OfficeProgram<Reached>* program) {
    detail::currentOfficeProgram<Reached>() = program;
}

/// The object of an office program that is running or, where none is (error 429), of a new one. Any other
/// error of the running one is passed on: a second one would not help. Error 429 if there is no program of
/// this kind.
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
