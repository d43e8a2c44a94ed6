#pragma once

#include "Report.h"

#include <initializer_list>

/// A column of a report's table. `width` is its share of the page's width, in any unit.
struct ReportColumn {
    QString label;
    QString head;
    int width = 0;
    ReportControl::Align align = ReportControl::Align::Left;
    QString format = {};
};

/// Builds the layout common to the five reports: the club's letterhead with the title and the settings of the
/// list, the table below it, the page number, and the summary after the last row. Call the functions from top
/// to bottom: each adds its line below the one before.
class Briefkopf {
public:
    /// Adds letterhead (Label10 to Label13 and Label15 with their values) and page footer (Label9).
    explicit Briefkopf(Report& report);

    /// Adds the title beside the address, in up to three lines of 20 points.
    ReportControl& addTitle(const QString& label, const QString& title);
    /// Adds a line below a title of one line: a setting that the list was made with. Up to four.
    void addSetting(const QString& label, const QString& caption, const QString& value);

    /// Sets smaller letters and less space in the table, for many columns. Call before addColumns().
    void setDense();
    /// Adds the column heads on the frame Shape1, the texts below them (Text1 and onward), and the rules
    /// Line1 (below each row), Line2 and Line3 (at the table's sides).
    void addColumns(std::initializer_list<ReportColumn> columns);

    // The report footer. Each line is a caption (the label `label`) followed by its value, which is returned.
    // A long text takes more lines.
    void addSummaryHeading(const QString& label, const QString& text);
    ReportControl& addSummary(const QString& label, const QString& caption, const QString& value);
    /// Adds a label with a number, below the sums.
    ReportControl& addNumber(const QString& label, const QString& caption, const QString& value);
    /// Adds a sum, in the format "#.##0" unless the caller sets another.
    ReportControl& addSum(const QString& label, const QString& caption, const QString& sum);
    /// Adds a label after the number of the line before.
    void addUnit(const QString& label, const QString& text);
    /// Adds a rule, as above a result.
    void addSummaryRule(const QString& name);
    /// Adds the end of both lists of members: their number and the user's description of the list.
    void addListDescription();

private:
    void addAddress();
    void addFooter();
    void addCaption(const QString& label, const QString& caption, const QRect& place);
    void addAddressLine(const QString& label, const QString& caption, int line);
    ReportControl& addAddressValue(const QString& value, int line, int left, int right);
    void addColumn(const ReportColumn& column, const QString& text, int left, int width);
    void addSummaryCaption(const QString& label, const QString& caption);
    QRect summaryPlace(int left, int width, int height) const;
    void endSummaryLine(int height);

    ReportSection& m_head;
    ReportSection& m_detail;
    ReportSection& m_foot;
    ReportSection& m_summary;
    int m_settings = 0;
    double m_tablePoints;
    int m_cellPadding;
    int m_rowHeight;
};
