#pragma once

#include <QString>

class ReportDocument;
struct PrintTarget;

/// Prints a report, dated today. Error 482 if the printer refuses. A PDF file is written as a whole or not at
/// all: error 76 if its folder is missing, 75 if it may not be written there, 61 if the disk is full.
void printReport(const ReportDocument& document, const PrintTarget& target);
/// All pages.
void saveReportAsPdf(const ReportDocument& document, const QString& file);
