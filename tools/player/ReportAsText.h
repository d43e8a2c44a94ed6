#pragma once

#include <QStringList>

class ReportDocument;

/// The texts of a report, line by line: report header and page header as "Section.control = text", the detail
/// rows with their texts joined by "|", then the report footer, and the page footer as on page 1.
QStringList reportAsText(const ReportDocument& document);
