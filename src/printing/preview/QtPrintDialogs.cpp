#include "QtPrintDialogs.h"

#include "KeyGuard.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPageRanges>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

void preset(QPrinter& printer, const QString& caption) {
    printer.setDocName(caption);
    printer.setCreator(QCoreApplication::applicationName());
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(QPageLayout::Portrait);
    printer.setPrintRange(QPrinter::AllPages);
}

// Adds a file name where the dialog proposes only a folder for the PDF file, as on some platforms.
void proposeFile(const QPrintDialog& dialog, const QString& caption) {
    auto* name = dialog.findChild<QLineEdit*>(u"filename"_s);
    if (name && name->text().endsWith(u'/')) name->setText(name->text() + pdfNameFor(caption));
}

bool isWanted(const QPrinter& printer, int number) {
    const QPageRanges ranges = printer.pageRanges();
    if (!ranges.isEmpty()) return ranges.contains(number);
    return number >= printer.fromPage() && (printer.toPage() == 0 || number <= printer.toPage());
}

QVector<int> wantedPages(const QPrinter& printer, int pages, int page) {
    QVector<int> wanted(pages);
    std::iota(wanted.begin(), wanted.end(), 0);
    if (printer.printRange() == QPrinter::CurrentPage) wanted = {page};
    if (printer.printRange() == QPrinter::PageRange)
        wanted.removeIf([&](int number) { return !isWanted(printer, number + 1); });
    if (printer.pageOrder() == QPrinter::LastPageFirst) std::reverse(wanted.begin(), wanted.end());
    return wanted;
}

} // namespace

std::optional<PrintTarget> QtPrintDialogs::choosePrintTarget(const QString& caption, int pages, int page) {
    PrintTarget target;
    target.printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    preset(*target.printer, caption);
    QPrintDialog dialog(target.printer.get(), QApplication::activeWindow());
    dialog.setWindowTitle(u"Drucken: %1"_s.arg(caption));
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog.setMinMax(1, pages);
    proposeFile(dialog, caption);
    const KeyGuard guard(&dialog);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    target.pages = wantedPages(*target.printer, pages, page);
    // The pages are chosen already: a print server must not apply the ranges once more.
    target.printer->setPageRanges({});
    if (target.printer->outputFormat() == QPrinter::PdfFormat)
        target.pdfFile = target.printer->outputFileName();
    else if (!target.printer->supportsMultipleCopies())
        target.copies = target.printer->copyCount();
    return target;
}

QString QtPrintDialogs::choosePdfFile(const QString& proposal) {
    if (m_pdfFolder.isEmpty() || !QDir(m_pdfFolder).exists())
        m_pdfFolder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QFileDialog dialog(QApplication::activeWindow(), u"Als PDF speichern"_s, m_pdfFolder,
                       u"PDF-Dateien (*.pdf)"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"pdf"_s);
    dialog.selectFile(proposal);
    const KeyGuard guard(&dialog);
    if (dialog.exec() != QDialog::Accepted) return {};
    const QString file = dialog.selectedFiles().value(0);
    m_pdfFolder = QFileInfo(file).path();
    return file;
}

int QtPrintDialogs::printerCount() const {
    return static_cast<int>(QPrinterInfo::availablePrinterNames().size()) + 1;
}
