#pragma once

#include "ReportRows.h"
#include "ReportSection.h"

#include <array>
#include <memory>

class ReportDocument;

/// A report: five sections with named controls, described once, then filled for each run. Labels and data
/// fields keep what was last set. A preview that is open keeps what it was opened with.
class Report {
public:
    explicit Report(const QString& caption);
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    const QString& caption() const { return m_caption; }

    /// In the order of printing: Section4 (report header, once), Section2 (page header, on every page),
    /// Section1 (detail, once a row), Section3 (page footer, on every page), Section5 (report footer, once,
    /// after the last row). Error 3265 for any other name.
    ReportSection& section(const QString& name);
    /// Error 3265 if there is no such section or control.
    ReportControl& control(const QString& section, const QString& name);

    /// Takes over all rows there and then; the source may go afterwards.
    void bind(ReportRowSource& source);

    /// What there is to print or to preview at this moment, on its own from here on. Error 3265 if a
    /// DataField is none of the data, 13 if one that is to be added up has no numbers.
    std::shared_ptr<const ReportDocument> document() const;

private:
    QString m_caption;
    std::array<ReportSection, 5> m_sections;
    std::shared_ptr<const ReportRows> m_rows;
};
