#pragma once

#include "PrintDialogs.h"

/// The platform's dialogs, above the active window. Its print dialog offers "print to PDF file" also where
/// there is no printer.
class QtPrintDialogs : public PrintDialogs {
public:
    std::optional<PrintTarget> choosePrintTarget(const QString& caption, int pages, int page) override;
    /// Begins in the folder of the last file, or in the user's documents.
    QString choosePdfFile(const QString& proposal) override;
    /// The platform's printers, and the PDF file as one more.
    int printerCount() const override;

private:
    QString m_pdfFolder; ///< of the last PDF file; empty before the first
};
