#include "QueuedDialogs.h"

QueuedDialogs::QueuedDialogs() {
    setPrintDialog(this);
    setPrintSaveDialog(this);
    setPrinterList(this);
}

QueuedDialogs::~QueuedDialogs() {
    setPrintDialog(nullptr);
    setPrintSaveDialog(nullptr);
    setPrinterList(nullptr);
}

QString QueuedDialogs::choose(const QString&) { return m_files.isEmpty() ? QString() : m_files.takeFirst(); }

std::optional<PrintTarget> QueuedDialogs::choose(const QString& caption, int, int) {
    const QString file = choose(caption);
    if (file.isEmpty()) return std::nullopt;
    PrintTarget target;
    target.pdfFile = file;
    return target;
}
