#include "QueuedDialogs.h"

QString QueuedDialogs::choosePdfFile(const QString&) {
    return m_files.isEmpty() ? QString() : m_files.takeFirst();
}

std::optional<PrintTarget> QueuedDialogs::choosePrintTarget(const ReportDocument&, int) {
    const QString file = choosePdfFile({});
    if (file.isEmpty()) return std::nullopt;
    return PrintTarget{file};
}
