#pragma once

#include "PrintRun.h"

#include <QString>
#include <optional>

/// What the machine has for printing. The real one shows the platform's dialogs; tests and the scenario
/// player answer by themselves.
class PrintDialogs {
public:
    virtual ~PrintDialogs() = default;
    /// Asks where to print. Preset to all of `pages` pages, of which `page` (from 0) is the current one; none
    /// if the user calls it off.
    virtual std::optional<PrintTarget> choosePrintTarget(const QString& caption, int pages, int page) = 0;
    /// Asks for the file that a PDF is to be saved as. `proposal` is a file name without folder. Empty if the
    /// user calls it off.
    virtual QString choosePdfFile(const QString& proposal) = 0;
    virtual int printerCount() const = 0;
};

/// Sets the implementation; it must outlive its use.
void setPrintDialogs(PrintDialogs* dialogs);
/// The one that was set; to be called only while there is one.
PrintDialogs& printDialogs();

/// Asks with the print dialog, set to all pages, and prints. False if the user calls it off. Errors as for
/// printReport().
bool printAfterDialog(const ReportDocument& document);

/// The caption and the day as a file name, without the characters that some system refuses.
QString pdfNameFor(QString caption);
