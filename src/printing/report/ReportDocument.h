#pragma once

#include "ReportLayout.h"
#include "ReportRows.h"
#include "ReportSection.h"

#include <QDate>
#include <array>
#include <memory>
#include <vector>

/// Page, row and day, on which a control's text may depend.
struct ReportPlace {
    int page = 0; ///< from 0
    QDate printed;
    int row = -1;              ///< in the detail section
    bool isLastOnPage = false; ///< the row is the last one on its page
};

/// A report as it was when it was printed or previewed. Never changes, and does not need the report that it
/// was made from.
class ReportDocument {
public:
    /// In the order of printing.
    enum Band { ReportHeader, PageHeader, Detail, PageFooter, ReportFooter };

    /// Error 3265 if the data have no such DataField, 13 if a field to be added up holds something other
    /// than numbers.
    ReportDocument(const QString& caption, const std::array<ReportSection, 5>& sections,
                   std::shared_ptr<const ReportRows> rows);

    const QString& caption() const { return m_caption; }
    const ReportSection& section(Band band) const { return m_sections[band]; }
    int rowCount() const { return m_rows->rowCount(); }
    const ReportLayout& layout() const { return m_layout; }
    int pageCount() const { return m_layout.pageCount(); }

    /// The formatted text of a control at a place; empty for rules and frames. `control` is its number in
    /// the section.
    QString text(Band band, std::size_t control, const ReportPlace& place) const;

private:
    void resolve(const ReportControl& control, std::vector<int>& fields) const;
    QString sumText(const ReportControl& control, int field) const;
    QString rowText(const ReportControl& control, int field, int row) const;
    QString labelText(const ReportControl& label, const ReportPlace& place) const;

    QString m_caption;
    std::array<ReportSection, 5> m_sections;
    std::array<std::vector<int>, 5> m_fields; ///< field number of each control, -1 for none
    std::shared_ptr<const ReportRows> m_rows;
    ReportLayout m_layout;
};
