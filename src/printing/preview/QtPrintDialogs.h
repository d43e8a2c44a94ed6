#pragma once

#include "PrintDialogs.h"

/// The platform's dialogs, above the active window. The print dialog offers "print to PDF file" even without
/// a printer.
class QtPrintDialogs : public PrintDialogs {
public:
    std::optional<PrintTarget> choosePrintTarget(const ReportDocument& document, int page) override;
    /// Begins in the folder of the last PDF file, or in the user's documents.
    QString choosePdfFile(const QString& proposal) override;
    /// The number of the platform's printers, plus one for the PDF file.
    int printerCount() const override;

private:
    QString m_pdfFolder; ///< of the last PDF file; empty before the first
};
