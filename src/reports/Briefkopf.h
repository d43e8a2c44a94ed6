#pragma once

#include "Report.h"

#include <initializer_list>

/// A column of a report's table: its head, its share of the page's breadth in any unit.
struct ReportColumn {
    QString label;
    QString head;
    int breadth = 0;
    ReportControl::Align align = ReportControl::Align::Left;
    QString format = {};
};

/// Lays out the face that the five reports share: the club's letterhead with the title and what the list was
/// made for, the table below it, the page number, and the summary behind the last row. To be called from top
/// to bottom: each line goes below the one before.
class Briefkopf {
public:
    /// Letterhead (Label10 to Label13 and Label15 with their values) and page footer (Label9).
    explicit Briefkopf(Report& report);

    /// The title beside the address, in up to three lines of 20 points.
    ReportControl& addTitle(const QString& label, const QString& title);
    /// Below a title of one line, line by line (up to four), what the list was made for.
    void addSetting(const QString& label, const QString& caption, const QString& value);

    /// Smaller letters and less air in the table, where there are many columns. To be called before them.
    void setDense();
    /// The column heads on the frame Shape1, the texts below them (Text1 and onward), and the rules Line1
    /// (below each row), Line2 and Line3 (at the table's sides).
    void addColumns(std::initializer_list<ReportColumn> columns);

    // The report footer. Each line is a caption (a label of its own name) with its value behind it; what is
    // returned is the value. A long text takes more lines.
    void addSummaryHeading(const QString& label, const QString& text);
    ReportControl& addSummary(const QString& label, const QString& caption, const QString& value);
    /// A label with a number, below the sums.
    ReportControl& addNumber(const QString& label, const QString& caption, const QString& value);
    /// In the format "#.##0" unless told otherwise.
    ReportControl& addSum(const QString& label, const QString& caption, const QString& sum);
    /// A label behind the number of the line before.
    void addUnit(const QString& label, const QString& text);
    /// A rule, as above a result.
    void addSummaryRule(const QString& name);
    /// What both lists of members end with: how many they are, and the user's words for the list.
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
