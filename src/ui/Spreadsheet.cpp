#include "Spreadsheet.h"

#include "RuntimeError.h"

namespace {

constexpr int cannotBeReached = 429;

class NoSpreadsheet final : public SpreadsheetProgram {
public:
    std::unique_ptr<Spreadsheet> running() override { throw runtimeError(cannotBeReached); }
    std::unique_ptr<Spreadsheet> start() override { throw runtimeError(cannotBeReached); }
};

SpreadsheetProgram*& inForce() {
    static SpreadsheetProgram* program = nullptr;
    return program;
}

} // namespace

void setSpreadsheetProgram(SpreadsheetProgram* program) { inForce() = program; }

SpreadsheetProgram& spreadsheetProgram() {
    static NoSpreadsheet none;
    return inForce() ? *inForce() : none;
}
