#pragma once

#include "PrintDialogs.h"

#include <QStringList>

/// Replaces the print dialog, the save dialog and the list of printers. A dialog returns the next queued
/// file. It is cancelled if none is queued.
class QueuedDialogs final : public PrintDialogs {
public:
    /// An empty name cancels the dialog.
    void queue(const QString& file) { m_files.append(file); }
    qsizetype unused() const { return m_files.size(); }
    void setPrinters(int count) { m_printers = count; }

    std::optional<PrintTarget> choosePrintTarget(const ReportDocument& document, int page) override;
    QString choosePdfFile(const QString& proposal) override;
    int printerCount() const override { return m_printers; }

private:
    QStringList m_files;
    int m_printers = 1;
};
