#pragma once

#include "Report.h"

#include <QVector>

/// The given rows, or `rows` rows of a number, a name and a weight.
class RowList : public ReportRowSource {
public:
    explicit RowList(int rows)
        : m_fields{u"Nr"_qs, u"Gewässer"_qs, u"Gewicht"_qs} {
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
    explicit SampleReport(const QString& caption = u"Probe"_qs)
        : Report(caption) {
        ReportSection& head = section(u"Section2"_qs);
        head.setHeight(600);
        head.addLabel(u"lblOrt"_qs, u"Erkner"_qs, {0, 0, 800, 60});
        head.addShape(u"Shape1"_qs, {0, 500, 1500, 60}).ground(0xffe3ecfc);
        ReportSection& detail = section(u"Section1"_qs);
        detail.setHeight(195);
        detail.addText(u"Text1"_qs, {0, 0, 200, 60}).align(ReportControl::Align::Right);
        detail.addText(u"Text2"_qs, {220, 0, 400, 60});
        detail.addText(u"Text3"_qs, {640, 0, 300, 60}).format(u"#.##0"_qs);
        detail.addLine(u"Line1"_qs, {0, 195, 1500, 0});
        ReportSection& foot = section(u"Section3"_qs);
        foot.setHeight(100);
        foot.addLabel(u"Label9"_qs, u"Seite %p von %P (gedruckt am %d)"_qs, {0, 0, 900, 60})
            .withPageNumbers();
        ReportSection& summary = section(u"Section5"_qs);
        summary.setHeight(200);
        summary.addSum(u"SumGewicht"_qs, {0, 0, 400, 60}).format(u"#.##0"_qs);
        control(u"Section1"_qs, u"Text1"_qs).setDataField(u"nr"_qs);
        control(u"Section1"_qs, u"Text2"_qs).setDataField(u"GEWÄSSER"_qs);
        control(u"Section1"_qs, u"Text3"_qs).setDataField(u"Gewicht"_qs);
        control(u"Section5"_qs, u"SumGewicht"_qs).setDataField(u"Gewicht"_qs);
    }

    void bindRows(int rows) {
        RowList source(rows);
        bind(source);
    }
};
