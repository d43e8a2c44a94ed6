#pragma once

#include "Spreadsheet.h"

/// LibreOffice as the spreadsheet, where its `soffice` is on the PATH. It is started for each workbook and
/// not waited for; if it runs already, it takes the workbook over by itself.
class LibreOfficeCalc final : public OfficeProgram<Spreadsheet> {
public:
    /// It offers no object of a running program: always error 429.
    std::unique_ptr<Spreadsheet> running() override;
    std::unique_ptr<Spreadsheet> start() override;

    /// The arguments that open a semicolon-separated file in Windows-1252 without a question: separator 59,
    /// no quotation mark, code page 1, from the first line on, German (1031), dates recognised, no formulas.
    static QStringList arguments(const QString& fileName);
};
