#include "QueuedDialogs.h"

QString QueuedDialogs::choosePdfFile(const QString&) {
    return m_files.isEmpty() ? QString() : m_files.takeFirst();
}

std::optional<PrintTarget> QueuedDialogs::choosePrintTarget(const QString& caption, int, int) {
    const QString file = choosePdfFile(caption);
    if (file.isEmpty()) return std::nullopt;
    PrintTarget target;
    target.pdfFile = file;
    return target;
}
