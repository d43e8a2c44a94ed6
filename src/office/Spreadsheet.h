#pragma once

#include "OfficeProgram.h"

#include <QString>

/// A running spreadsheet program, as the routines use it.
class Spreadsheet {
public:
    virtual ~Spreadsheet() = default;
    virtual void setVisible(bool on) = 0;
    virtual void openWorkbook(const QString& fileName) = 0;
    /// Fits the width of columns to their content. `range` is for instance "A:A".
    virtual void autoFitColumns(const QString& range) = 0;
};
