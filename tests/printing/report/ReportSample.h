#pragma once

#include "Report.h"

#include <QVector>

using namespace Qt::StringLiterals;

inline ReportRows rowsOf(const QStringList& fields, const QVector<std::vector<Value>>& rows) {
    ReportRows made(fields);
    for (const std::vector<Value>& row : rows) made.append(row);
    return made;
}

/// A report of three columns and ten rows a page. The last page has nine and the sum below them.
class SampleReport : public Report {
public:
    explicit SampleReport(const QString& caption = u"Probe"_s)
        : Report(caption) {
        using Kind = ReportControl::Kind;
        section(u"Section2"_s) = {u"Section2"_s,
                                  600,
                                  {{Kind::Label, u"lblOrt"_s, {0, 0, 800, 60}, {}, u"Erkner"_s},
                                   {Kind::Shape, u"Shape1"_s, {0, 500, 1500, 60}, {.ground = 0xffe3ecfc}}}};
        section(u"Section1"_s) = {
            u"Section1"_s,
            195,
            {{Kind::Text, u"Text1"_s, {0, 0, 200, 60}, {.align = ReportLook::Align::Right}, {}, u"nr"_s},
             {Kind::Text, u"Text2"_s, {220, 0, 400, 60}, {}, {}, u"GEWÄSSER"_s},
             {Kind::Text, u"Text3"_s, {640, 0, 300, 60}, {.format = u"#.##0"_s}, {}, u"Gewicht"_s},
             {Kind::Line, u"Line1"_s, {0, 195, 1500, 0}}}};
        section(u"Section3"_s) = {u"Section3"_s,
                                  100,
                                  {{Kind::Label,
                                    u"Label9"_s,
                                    {0, 0, 900, 60},
                                    {.pageNumbers = true},
                                    u"Seite %p von %P (gedruckt am %d)"_s}}};
        section(u"Section5"_s) = {
            u"Section5"_s,
            200,
            {{Kind::Sum, u"SumGewicht"_s, {0, 0, 400, 60}, {.format = u"#.##0"_s}, {}, u"Gewicht"_s}}};
    }

    /// Rows of a number, a name and a weight.
    void bindRows(int rows) {
        ReportRows made({u"Nr"_s, u"Gewässer"_s, u"Gewicht"_s});
        for (int row = 1; row <= rows; ++row) made.append({row, u"Großer See", 1000});
        bind(std::move(made));
    }
};
