#include "Briefkopf.h"

#include "ReportPaper.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int bodyWidth = ReportPaper::bodyWidth;

// The letterhead: the address at the left, the title and the settings of the list at the right.
constexpr int addressTop = 60;
constexpr int addressLine = 46;
constexpr int captionWidth = 180;
constexpr int addressWidth = 980;
constexpr int codeWidth = 130;
constexpr int codeSpace = 16;
constexpr double leastCodePoints = 5; // small, since a code must not be broken into lines
constexpr int titleLeft = 1060;
constexpr int settingTop = addressTop + addressLine; // beside the street
constexpr int settingCaption = 260;
constexpr int headTop = 290;
constexpr int headHeight = 66;

constexpr int footHeight = 80;
constexpr int summaryTop = 60;
constexpr int summaryHeading = 76;
constexpr int summaryLine = 52;
constexpr int summaryCaption = 430;
constexpr int summaryValue = 330;

constexpr double bodyPoints = 9.5;

constexpr QRgb clubBlue = 0xff1f3f77;
constexpr QRgb paleBlue = 0xffe3ecfc;
constexpr QRgb faint = 0xffb8c2d4;
constexpr QRgb grey = 0xff505866;

using Align = ReportLook::Align;
using Kind = ReportControl::Kind;

const ReportLook heading{.points = 11, .bold = true, .ink = clubBlue};
const ReportLook faded{.points = bodyPoints, .ink = grey};
const ReportLook entry{.points = bodyPoints, .leastPoints = 7.5};

ReportLook& addLabel(ReportSection& section, const QString& name, const QString& text, const QRect& place,
                     const ReportLook& look) {
    return section.controls.emplace_back(ReportControl{Kind::Label, name, place, look, text}).look;
}

/// Adds a line: a caption up to valueLeft, and from there on a value, whose look is returned.
ReportLook& addLine(ReportSection& section, QRect place, int valueLeft, const QString& label,
                    const QString& caption, ReportControl value) {
    addLabel(section, label, caption, {place.topLeft(), QSize(valueLeft, place.height())}, faded);
    place.setLeft(place.left() + valueLeft);
    value.place = place;
    return section.controls.emplace_back(std::move(value)).look;
}

} // namespace

Briefkopf::Briefkopf(Report& report)
    : m_head(report.section(u"Section2"_s))
    , m_detail(report.section(u"Section1"_s))
    , m_summary(report.section(u"Section5"_s)) {
    addAddress();
    ReportSection& foot = report.section(u"Section3"_s);
    foot.height = footHeight;
    addLabel(foot, u"Label9"_s, u"Seite %p von %P (gedruckt am %d)"_s, {0, footHeight - 44, bodyWidth, 44},
             {.points = 8.5, .align = Align::Right, .pageNumbers = true, .ink = grey});
}

void Briefkopf::addAddress() {
    constexpr int codeEnd = captionWidth + codeWidth;
    const auto place = [](int line, int left, int right) {
        return QRect(left, addressTop + line * addressLine, right - left, addressLine);
    };
    const auto add = [&](int line, const QString& label, const QString& caption, const QString& value,
                         int right = addressWidth) -> ReportLook& {
        return addLine(m_head, place(line, 0, right), captionWidth, label, caption,
                       {Kind::Label, value, {}, entry});
    };
    addLabel(m_head, u"Label13"_s, u"Anschrift:"_s, {0, 0, addressWidth, 54}, heading);
    add(0, u"Label10"_s, u"Name   :"_s, u"lblVerein"_s).bold = true;
    add(1, u"Label11"_s, u"Strasse :"_s, u"lblStrasse"_s);
    add(2, u"Label12"_s, u"PLZ /Ort:"_s, u"lblPLZ"_s, codeEnd).leastPoints = leastCodePoints;
    addLabel(m_head, u"lblOrt"_s, {}, place(2, codeEnd + codeSpace, addressWidth), entry);
    add(3, u"Label15"_s, u"Tel         :"_s, u"lblTelefon"_s);
}

ReportLook& Briefkopf::addTitle(const QString& label, const QString& title) {
    constexpr int spaceBelow = 8;
    return addLabel(m_head, label, title, {titleLeft, 0, bodyWidth - titleLeft, headTop - spaceBelow},
                    {.points = 20, .bold = true, .wrapped = true, .ink = clubBlue});
}

void Briefkopf::addSetting(const QString& label, const QString& caption, const QString& value) {
    const int top = settingTop + m_settings++ * addressLine;
    addLine(m_head, {titleLeft, top, bodyWidth - titleLeft, addressLine}, settingCaption, label, caption,
            {Kind::Label, value, {}, entry});
}

void Briefkopf::addColumns(std::initializer_list<ReportColumn> columns, const TableStyle& style) {
    const auto& [points, padding, rowHeight] = style;
    int whole = 0;
    for (const ReportColumn& column : columns) whole += column.width;
    m_head.height = headTop + headHeight;
    m_detail.height = rowHeight;
    m_head.controls.push_back({Kind::Shape,
                               u"Shape1"_s,
                               {0, headTop, bodyWidth, headHeight},
                               {.ink = clubBlue, .ground = paleBlue}});
    int passed = 0;
    int number = 0;
    for (const ReportColumn& column : columns) {
        const int left = bodyWidth * passed / whole + padding;
        passed += column.width;
        const int width = bodyWidth * passed / whole - padding - left;
        addLabel(m_head, column.label, column.head, {left, headTop, width, headHeight},
                 {.points = points, .bold = true, .align = column.align, .ink = clubBlue});
        m_detail.controls.push_back({Kind::Text,
                                     u"Text%1"_s.arg(++number),
                                     {left, 0, width, rowHeight},
                                     {.points = points, .align = column.align, .format = column.format}});
    }
    const auto addRule = [&](const QString& name, const QRect& place, const ReportLook& look) {
        m_detail.controls.push_back({Kind::Line, name, place, look});
    };
    addRule(u"Line1"_s, {0, rowHeight, bodyWidth, 0}, {.ink = faint, .lineWidth = 1, .closingInk = clubBlue});
    addRule(u"Line2"_s, {0, 0, 0, rowHeight}, {.ink = clubBlue});
    addRule(u"Line3"_s, {bodyWidth, 0, 0, rowHeight}, {.ink = clubBlue});
}

/// Makes room for another line and returns its place.
QRect Briefkopf::nextSummaryLine(int height) {
    const int top = std::max(m_summary.height, summaryTop);
    m_summary.height = top + height;
    return {0, top, bodyWidth, height};
}

void Briefkopf::addSummaryHeading(const QString& label, const QString& text) {
    if (m_summary.height > 0) nextSummaryLine(summaryLine / 2);
    addLabel(m_summary, label, text, nextSummaryLine(summaryHeading), heading);
}

ReportLook& Briefkopf::addSummary(const QString& label, const QString& caption, const QString& value) {
    return addLine(m_summary, nextSummaryLine(summaryLine), summaryCaption, label, caption,
                   {Kind::Label, value, {}, {.points = bodyPoints, .leastPoints = bodyPoints}});
}

ReportLook& Briefkopf::addNumber(const QString& label, const QString& caption, const QString& value,
                                 Kind kind) {
    QRect place = nextSummaryLine(summaryLine);
    place.setWidth(summaryCaption + summaryValue);
    return addLine(m_summary, place, summaryCaption, label, caption,
                   {kind, value, {}, {.points = bodyPoints, .align = Align::Right}});
}

void Briefkopf::addSum(const QString& label, const QString& caption, const QString& sum) {
    ReportLook& look = addNumber(label, caption, sum, Kind::Sum);
    look.bold = true;
    look.format = u"#.##0"_s;
}

void Briefkopf::addUnit(const QString& label, const QString& text) {
    const int left = summaryCaption + summaryValue + TableStyle().padding;
    addLabel(m_summary, label, text, {left, m_summary.height - summaryLine, bodyWidth - left, summaryLine},
             faded);
}

void Briefkopf::addSummaryRule(const QString& name) {
    const int above = 8;
    const int top = nextSummaryLine(2 * above).top() + above;
    m_summary.controls.push_back(
        {Kind::Line, name, {0, top, summaryCaption + summaryValue, 0}, {.ink = clubBlue}});
}
