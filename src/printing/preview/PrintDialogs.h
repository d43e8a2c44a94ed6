#pragma once

#include "PrintRun.h"

#include <optional>

/// The print dialogs. The program's implementation shows the platform's dialogs; those of the tests and of
/// the scenario player answer by themselves.
class PrintDialogs {
public:
    virtual ~PrintDialogs() = default;
    /// Asks where to print, preset to all pages. `page` (from 0) is the current one. None if the user
    /// cancels.
    virtual std::optional<PrintTarget> choosePrintTarget(const ReportDocument& document, int page) = 0;
    /// Asks for the file to save a PDF as. `proposal` is a file name without folder. Empty if the user
    /// cancels.
    virtual QString choosePdfFile(const QString& proposal) = 0;
    virtual int printerCount() const = 0;
};

/// Sets the implementation, which must outlive its use.
void setPrintDialogs(PrintDialogs* dialogs);
/// The implementation. Call only after setPrintDialogs().
PrintDialogs& printDialogs();

/// A file name of the caption and today's date, without the characters that some systems refuse.
QString pdfNameFor(QString caption);
