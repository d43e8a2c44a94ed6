#pragma once

#include "Spreadsheet.h"

/// LibreOffice as the spreadsheet program, if its `soffice` is on the PATH. Starts it for each workbook
/// without waiting for it. A running LibreOffice takes over the workbook by itself.
class LibreOfficeCalc final : public OfficeProgram<Spreadsheet> {
public:
    std::unique_ptr<Spreadsheet> start() override;

    /// The arguments that open a semicolon-separated file in Windows-1252 without a question: separator 59,
    /// no quotation mark, code page 1, from the first line on, German (1031), dates recognised, no formulas.
    static QStringList arguments(const QString& fileName);
};
