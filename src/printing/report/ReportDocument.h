#pragma once

#include "Report.h"
#include "ReportLayout.h"

#include <QDate>

/// Page, day and row, on which a control's text may depend.
struct ReportPlace {
    int page; ///< from 0
    QDate printed;
    int row = -1; ///< in the detail section
};

/// A report as it was when it was printed or previewed. Never changes, and does not need the report that it
/// was made from.
class ReportDocument {
public:
    using Sections = std::array<ReportSection, 5>; ///< by ReportLayout::Band

    /// Error 3265 if the data have no such DataField, 13 if a field to be added up holds something other
    /// than numbers.
    ReportDocument(const QString& caption, const Sections& sections, std::shared_ptr<const ReportRows> rows);

    const QString& caption() const { return m_caption; }
    const ReportSection& section(ReportLayout::Band band) const { return m_sections[band]; }
    int rowCount() const { return m_rows->rowCount(); }
    const ReportLayout& layout() const { return m_layout; }
    int pageCount() const { return m_layout.pageCount(); }

    /// The formatted text of a label, text or sum of this document.
    QString text(const ReportControl& control, const ReportPlace& place) const;

private:
    QString labelText(const ReportControl& label, const ReportPlace& place) const;

    QString m_caption;
    Sections m_sections;
    std::shared_ptr<const ReportRows> m_rows;
    ReportLayout m_layout;
};
