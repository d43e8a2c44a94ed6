#include "PrintRun.h"

#include "Clock.h"
#include "ReportDocument.h"
#include "ReportPainter.h"
#include "ReportPaper.h"
#include "RuntimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

// On a sheet smaller than A4 the page shrinks; nothing is cut off.
double unitOn(const QPaintDevice& device) {
    const double resolution = device.logicalDpiX() / ReportPaper::tenthsPerInch;
    const double width = double(device.width()) / ReportPaper::width;
    const double height = double(device.height()) / ReportPaper::height;
    return std::min({resolution, width, height});
}

void paintPages(QPagedPaintDevice& device, const ReportDocument& document, const QVector<int>& pages) {
    QPainter painter;
    if (!painter.begin(&device)) throw runtimeError(RuntimeError::printerFailed);
    painter.scale(unitOn(device), unitOn(device));
    ReportPainter report(document, today());
    for (qsizetype number = 0; number < pages.size(); ++number) {
        if (number > 0 && !device.newPage()) throw runtimeError(RuntimeError::printerFailed);
        report.paint(painter, pages[number]);
    }
    if (!painter.end()) throw runtimeError(RuntimeError::printerFailed);
}

void printOn(QPrinter& printer, const ReportDocument& document, const QVector<int>& pages) {
    printer.setFullPage(true);
    paintPages(printer, document, pages);
    if (printer.printerState() == QPrinter::Error) throw runtimeError(RuntimeError::printerFailed);
}

RuntimeError errorOf(const QSaveFile& file) {
    if (!QFileInfo(file.fileName()).dir().exists()) return runtimeError(RuntimeError::pathNotFound);
    return runtimeError(file.error() == QFileDevice::ResourceError ? RuntimeError::diskFull
                                                                   : RuntimeError::pathFailed);
}

// Writes to a file beside it first, so that a full disk leaves the former PDF as it was.
void writePdf(const QString& name, const ReportDocument& document, const QVector<int>& pages) {
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly)) throw errorOf(file);
    QPdfWriter writer(&file);
    writer.setTitle(document.caption());
    writer.setCreator(u"Uferwart"_s);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins({});
    paintPages(writer, document, pages);
    if (!file.commit()) throw errorOf(file);
}

} // namespace

void printReport(const ReportDocument& document, const PrintTarget& target) {
    QVector<int> pages = target.pages;
    if (pages.isEmpty()) {
        pages.resize(document.pageCount());
        std::iota(pages.begin(), pages.end(), 0);
    }
    if (!target.pdfFile.isEmpty())
        writePdf(target.pdfFile, document, pages);
    else
        printOn(*target.printer, document, pages);
}
