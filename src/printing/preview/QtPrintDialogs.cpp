#include "QtPrintDialogs.h"

#include "KeyGuard.h"
#include "ReportDocument.h"

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

std::optional<PrintTarget> QtPrintDialogs::choosePrintTarget(const ReportDocument& document, int page) {
    PrintTarget target;
    target.printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    preset(*target.printer, document.caption());
    QPrintDialog dialog(target.printer.get(), QApplication::activeWindow());
    dialog.setWindowTitle(u"Drucken: %1"_s.arg(document.caption()));
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog.setMinMax(1, document.pageCount());
    proposeFile(dialog, document.caption());
    const KeyGuard guard(&dialog);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    // The pages are chosen below: a print server must not apply the ranges once more.
    const QVector<int> wanted = wantedPages(*target.printer, document.pageCount(), page);
    target.printer->setPageRanges({});
    const bool toFile = target.printer->outputFormat() == QPrinter::PdfFormat;
    if (toFile) target.pdfFile = target.printer->outputFileName();
    const bool copiesItself = toFile || target.printer->supportsMultipleCopies();
    for (int copies = copiesItself ? 1 : target.printer->copyCount(); copies > 0; --copies)
        target.pages += wanted;
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
