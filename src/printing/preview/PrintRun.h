#pragma once

#include <QString>
#include <QVector>
#include <memory>

class QPrinter;
class ReportDocument;

/// The target of printing: a PDF file, or a printer if no file is named.
struct PrintTarget {
    QString pdfFile;
    std::shared_ptr<QPrinter> printer = {};
    QVector<int> pages = {}; ///< from 0, in the order of printing; empty for all
};

/// Prints a report, dated today. Error 482 if the printer refuses. A PDF file is written as a whole or not at
/// all: error 76 if its folder is missing, 75 if it can't be written there, 61 if the disk is full.
void printReport(const ReportDocument& document, const PrintTarget& target);
