#pragma once

#include "PrintDialogs.h"

/// The platform's dialogs, above the active window. Its print dialog offers "print to PDF file" also where
/// there is no printer.
class QtPrintDialogs : public PrintDialogs {
public:
    std::optional<PrintTarget> choosePrintTarget(const QString& caption, int pages, int page) override;
    QString choosePdfFile(const QString& proposal) override;
    /// The platform's printers, and the PDF file as one more.
    int printerCount() const override;
};
