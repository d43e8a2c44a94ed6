#pragma once

#include <QPrinter>
#include <QString>
#include <QVector>
#include <memory>
#include <optional>

/// Where a report is to be printed: a PDF file, or a printer where no file is named.
struct PrintTarget {
    QString pdfFile;
    std::shared_ptr<QPrinter> printer;
    QVector<int> pages; ///< from 0, in the order of printing; empty for all
    int copies = 1;     ///< runs over the pages; for a printer that can't count copies itself
};

/// Asks the user where to print. The real one is the platform's dialog, which offers "print to PDF file"
/// also where there is no printer.
class PrintDialog {
public:
    virtual ~PrintDialog() = default;
    /// Preset to all of `pages` pages, of which `page` (from 0) is the current one; none if the user calls
    /// it off.
    virtual std::optional<PrintTarget> choose(const QString& caption, int pages, int page) = 0;
};

/// Puts an implementation in force; it must outlive its use. With null, it is the platform's dialog.
void setPrintDialog(PrintDialog* dialog);

std::optional<PrintTarget> choosePrintTarget(const QString& caption, int pages, int page = 0);
