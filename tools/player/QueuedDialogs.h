#pragma once

#include "PrintDialogs.h"

#include <QStringList>

/// Stands in for the print and the save dialog and the machine's printers. A dialog gets the next queued
/// file, and is called off where none is queued.
class QueuedDialogs final : public PrintDialogs {
public:
    /// An empty name calls the dialog off.
    void queue(const QString& file) { m_files.append(file); }
    qsizetype unused() const { return m_files.size(); }
    void setPrinters(int count) { m_printers = count; }

    std::optional<PrintTarget> choosePrintTarget(const QString& caption, int pages, int page) override;
    QString choosePdfFile(const QString& proposal) override;
    int printerCount() const override { return m_printers; }

private:
    QStringList m_files;
    int m_printers = 1;
};
