#pragma once

#include "Report.h"

#include <initializer_list>

/// A column of a report's table. `width` is its share of the page's width, in any unit.
struct ReportColumn {
    QString label;
    QString head;
    int width;
    ReportLook::Align align = ReportLook::Align::Left;
    QString format = {};
};

/// The size of the letters and the space of a table: less of it for many columns.
struct TableStyle {
    double points = 9.5;
    int padding = 16;
    int rowHeight = 54;
};

/// Builds the layout common to the five reports: the club's letterhead with the title and the settings of the
/// list, the table below it, the page number, and the summary after the last row. Call the functions from top
/// to bottom: each adds its line below the one before.
class Briefkopf {
public:
    /// Adds letterhead (Label10 to Label13 and Label15 with their values) and page footer (Label9).
    explicit Briefkopf(Report& report);

    /// Adds the title beside the address, in up to three lines of 20 points.
    ReportLook& addTitle(const QString& label, const QString& title);
    /// Adds a line below a title of one line: a setting that the list was made with. Up to four.
    void addSetting(const QString& label, const QString& caption, const QString& value);

    /// Adds the column heads on the frame Shape1, the texts below them (Text1 and onward), and the rules
    /// Line1 (below each row), Line2 and Line3 (at the table's sides).
    void addColumns(std::initializer_list<ReportColumn> columns, const TableStyle& style = {});

    // The report footer. Each line is a caption (the label `label`) followed by its value, whose look is
    // returned.
    void addSummaryHeading(const QString& label, const QString& text);
    /// A long text takes more lines.
    ReportLook& addSummary(const QString& label, const QString& caption, const QString& value);
    /// Adds a label with a number, below the sums.
    ReportLook& addNumber(const QString& label, const QString& caption, const QString& value,
                          ReportControl::Kind kind = ReportControl::Kind::Label);
    void addSum(const QString& label, const QString& caption, const QString& sum);
    /// Adds a label after the number of the line before.
    void addUnit(const QString& label, const QString& text);
    /// Adds a rule, as above a result.
    void addSummaryRule(const QString& name);

private:
    void addAddress();
    QRect nextSummaryLine(int height);

    ReportSection& m_head;
    ReportSection& m_detail;
    ReportSection& m_summary;
    int m_settings = 0;
};
