#pragma once

#include "OfficeProgram.h"

#include <QString>

/// A spreadsheet program that has been reached: what the routines ask of it.
class Spreadsheet {
public:
    virtual ~Spreadsheet() = default;
    virtual void setVisible(bool on) = 0;
    virtual void openWorkbook(const QString& fileName) = 0;
    /// Makes the columns of a range such as "A:A" as wide as their content.
    virtual void autoFitColumns(const QString& range) = 0;
};
