#pragma once

#include <QString>
#include <memory>

/// A spreadsheet program that has been reached: what the routines ask of it.
class Spreadsheet {
public:
    virtual ~Spreadsheet() = default;
    virtual void setVisible(bool on) = 0;
    virtual void openWorkbook(const QString& fileName) = 0;
    /// Makes the columns of a range such as "A:A" as wide as their content.
    virtual void autoFitColumns(const QString& range) = 0;
};

/// The way to the machine's spreadsheet program.
class SpreadsheetProgram {
public:
    virtual ~SpreadsheetProgram() = default;
    /// The one that is running; error 429 if none is.
    virtual std::unique_ptr<Spreadsheet> running() = 0;
    /// A new one; error 429 if there is none on the machine.
    virtual std::unique_ptr<Spreadsheet> start() = 0;
};

/// Puts an implementation in force; it must outlive its use.
void setSpreadsheetProgram(SpreadsheetProgram* program);
/// Without an implementation in force there is no spreadsheet: both ways to one are error 429.
SpreadsheetProgram& spreadsheetProgram();
