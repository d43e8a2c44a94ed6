#pragma once

#include "Report.h"

#include <QVector>

using namespace Qt::StringLiterals;

/// The given rows, or `rows` rows of a number, a name and a weight.
class RowList : public ReportRowSource {
public:
    explicit RowList(int rows)
        : m_fields{u"Nr"_s, u"Gewässer"_s, u"Gewicht"_s} {
        for (int row = 1; row <= rows; ++row) m_rows.push_back({row, u"Großer See", 1000});
    }
    RowList(const QStringList& fields, const QVector<std::vector<Value>>& rows)
        : m_fields(fields)
        , m_rows(rows) {}

    QStringList fields() const override { return m_fields; }
    bool next(std::vector<Value>& row) override {
        if (m_next == m_rows.size()) return false;
        row = m_rows[m_next++];
        return true;
    }

private:
    QStringList m_fields;
    QVector<std::vector<Value>> m_rows;
    qsizetype m_next = 0;
};

/// A report of three columns and ten rows a page. The last page has nine and the sum below them.
class SampleReport : public Report {
public:
    explicit SampleReport(const QString& caption = u"Probe"_s)
        : Report(caption) {
        ReportSection& head = section(u"Section2"_s);
        head.setHeight(600);
        head.addLabel(u"lblOrt"_s, u"Erkner"_s, {0, 0, 800, 60});
        head.addShape(u"Shape1"_s, {0, 500, 1500, 60}).ground(0xffe3ecfc);
        ReportSection& detail = section(u"Section1"_s);
        detail.setHeight(195);
        detail.addText(u"Text1"_s, {0, 0, 200, 60}).align(ReportControl::Align::Right);
        detail.addText(u"Text2"_s, {220, 0, 400, 60});
        detail.addText(u"Text3"_s, {640, 0, 300, 60}).format(u"#.##0"_s);
        detail.addLine(u"Line1"_s, {0, 195, 1500, 0});
        ReportSection& foot = section(u"Section3"_s);
        foot.setHeight(100);
        foot.addLabel(u"Label9"_s, u"Seite %p von %P (gedruckt am %d)"_s, {0, 0, 900, 60}).withPageNumbers();
        ReportSection& summary = section(u"Section5"_s);
        summary.setHeight(200);
        summary.addSum(u"SumGewicht"_s, {0, 0, 400, 60}).format(u"#.##0"_s);
        control(u"Section1"_s, u"Text1"_s).setDataField(u"nr"_s);
        control(u"Section1"_s, u"Text2"_s).setDataField(u"GEWÄSSER"_s);
        control(u"Section1"_s, u"Text3"_s).setDataField(u"Gewicht"_s);
        control(u"Section5"_s, u"SumGewicht"_s).setDataField(u"Gewicht"_s);
    }

    void bindRows(int rows) {
        RowList source(rows);
        bind(source);
    }
};
