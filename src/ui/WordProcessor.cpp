#include "WordProcessor.h"

#include "RuntimeError.h"

namespace {

constexpr int cannotBeReached = 429;

class NoWordProcessor final : public WordProcessorProgram {
public:
    std::unique_ptr<WordProcessor> running() override { throw runtimeError(cannotBeReached); }
    std::unique_ptr<WordProcessor> start() override { throw runtimeError(cannotBeReached); }
};

WordProcessorProgram*& inForce() {
    static WordProcessorProgram* program = nullptr;
    return program;
}

} // namespace

void setWordProcessorProgram(WordProcessorProgram* program) { inForce() = program; }

WordProcessorProgram& wordProcessorProgram() {
    static NoWordProcessor none;
    return inForce() ? *inForce() : none;
}
