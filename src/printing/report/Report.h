#pragma once

#include "ReportControl.h"
#include "ReportRows.h"

#include <array>
#include <memory>

class ReportDocument;

/// A band across the page with its controls, in the order in which they are painted.
struct ReportSection {
    QString name;
    int height = 0; ///< tenths of a millimetre
    std::vector<ReportControl> controls = {};
};

/// A report: five sections with named controls, described once, then filled for each run. Captions and data
/// fields stay until they are set again. An open preview does not change with them.
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

    void bind(ReportRows rows) { m_rows = std::make_shared<ReportRows>(std::move(rows)); }

    /// A copy of the report's present state, to print or preview. Error 3265 if the data have no such
    /// DataField, 13 if a field to be added up holds something other than numbers.
    std::shared_ptr<const ReportDocument> document() const;

private:
    QString m_caption;
    std::array<ReportSection, 5> m_sections;
    std::shared_ptr<const ReportRows> m_rows = std::make_shared<ReportRows>();
};
