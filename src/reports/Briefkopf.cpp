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

constexpr int rowHeight = 54;
constexpr int cellPadding = 16;

constexpr int footHeight = 80;
constexpr int summaryTop = 60;
constexpr int summaryHeading = 76;
constexpr int summaryLine = 52;
constexpr int summaryCaption = 430;
constexpr int summaryValue = 330;

constexpr double bodyPoints = 9.5;
constexpr double leastPoints = 7.5;

constexpr QRgb clubBlue = 0xff1f3f77;
constexpr QRgb paleBlue = 0xffe3ecfc;
constexpr QRgb faint = 0xffb8c2d4;
constexpr QRgb grey = 0xff505866;

} // namespace

Briefkopf::Briefkopf(Report& report)
    : m_head(report.section(u"Section2"_s))
    , m_detail(report.section(u"Section1"_s))
    , m_foot(report.section(u"Section3"_s))
    , m_summary(report.section(u"Section5"_s))
    , m_tablePoints(bodyPoints)
    , m_cellPadding(cellPadding)
    , m_rowHeight(rowHeight) {
    addAddress();
    addFooter();
}

void Briefkopf::addAddress() {
    m_head.addLabel(u"Label13"_s, u"Anschrift:"_s, {0, 0, addressWidth, 54}).points(11).bold().ink(clubBlue);
    constexpr int codeEnd = captionWidth + codeWidth;
    addAddressLine(u"Label10"_s, u"Name   :"_s, 0);
    addAddressValue(u"lblVerein"_s, 0, captionWidth, addressWidth).bold();
    addAddressLine(u"Label11"_s, u"Strasse :"_s, 1);
    addAddressValue(u"lblStrasse"_s, 1, captionWidth, addressWidth);
    addAddressLine(u"Label12"_s, u"PLZ /Ort:"_s, 2);
    addAddressValue(u"lblPLZ"_s, 2, captionWidth, codeEnd).growing(leastCodePoints);
    addAddressValue(u"lblOrt"_s, 2, codeEnd + codeSpace, addressWidth);
    addAddressLine(u"Label15"_s, u"Tel         :"_s, 3);
    addAddressValue(u"lblTelefon"_s, 3, captionWidth, addressWidth);
}

void Briefkopf::addCaption(const QString& label, const QString& caption, const QRect& place) {
    m_head.addLabel(label, caption, place).points(bodyPoints).ink(grey);
}

void Briefkopf::addAddressLine(const QString& label, const QString& caption, int line) {
    addCaption(label, caption, {0, addressTop + line * addressLine, captionWidth, addressLine});
}

ReportControl& Briefkopf::addAddressValue(const QString& value, int line, int left, int right) {
    const QRect place(left, addressTop + line * addressLine, right - left, addressLine);
    return m_head.addLabel(value, {}, place).points(bodyPoints).growing(leastPoints);
}

void Briefkopf::addFooter() {
    m_foot.setHeight(footHeight);
    m_foot.addLabel(u"Label9"_s, u"Seite %p von %P (gedruckt am %d)"_s, {0, footHeight - 44, bodyWidth, 44})
        .points(8.5)
        .align(ReportControl::Align::Right)
        .ink(grey)
        .withPageNumbers();
}

ReportControl& Briefkopf::addTitle(const QString& label, const QString& title) {
    constexpr int spaceBelow = 8;
    return m_head.addLabel(label, title, {titleLeft, 0, bodyWidth - titleLeft, headTop - spaceBelow})
        .points(20)
        .bold()
        .ink(clubBlue)
        .wrapped();
}

void Briefkopf::addSetting(const QString& label, const QString& caption, const QString& value) {
    const int top = settingTop + m_settings++ * addressLine;
    addCaption(label, caption, {titleLeft, top, settingCaption, addressLine});
    const int left = titleLeft + settingCaption;
    m_head.addLabel(value, {}, {left, top, bodyWidth - left, addressLine})
        .points(bodyPoints)
        .growing(leastPoints);
}

void Briefkopf::setDense() {
    m_tablePoints = 8;
    m_cellPadding = 11;
    m_rowHeight = 47;
}

void Briefkopf::addColumns(std::initializer_list<ReportColumn> columns) {
    int whole = 0;
    for (const ReportColumn& column : columns) whole += column.width;
    if (whole <= 0) return; // no column, no table
    m_head.setHeight(headTop + headHeight);
    m_detail.setHeight(m_rowHeight);
    m_head.addShape(u"Shape1"_s, {0, headTop, bodyWidth, headHeight}).ground(paleBlue).ink(clubBlue);
    int passed = 0;
    int number = 0;
    for (const ReportColumn& column : columns) {
        const int left = bodyWidth * passed / whole + m_cellPadding;
        passed += column.width;
        const int width = bodyWidth * passed / whole - m_cellPadding - left;
        addColumn(column, u"Text%1"_s.arg(++number), left, width);
    }
    m_detail.addLine(u"Line1"_s, {0, m_rowHeight, bodyWidth, 0}).ink(faint).lineWidth(1).closing(clubBlue);
    m_detail.addLine(u"Line2"_s, {0, 0, 0, m_rowHeight}).ink(clubBlue);
    m_detail.addLine(u"Line3"_s, {bodyWidth, 0, 0, m_rowHeight}).ink(clubBlue);
}

void Briefkopf::addColumn(const ReportColumn& column, const QString& text, int left, int width) {
    m_head.addLabel(column.label, column.head, {left, headTop, width, headHeight})
        .points(m_tablePoints)
        .bold()
        .ink(clubBlue)
        .align(column.align);
    m_detail.addText(text, {left, 0, width, m_rowHeight})
        .points(m_tablePoints)
        .align(column.align)
        .format(column.format);
}

QRect Briefkopf::summaryPlace(int left, int width, int height) const {
    return {left, std::max(m_summary.height(), summaryTop), width, height};
}

void Briefkopf::endSummaryLine(int height) {
    m_summary.setHeight(std::max(m_summary.height(), summaryTop) + height);
}

void Briefkopf::addSummaryHeading(const QString& label, const QString& text) {
    const int space = m_summary.height() > 0 ? summaryLine / 2 : 0;
    if (space > 0) endSummaryLine(space);
    m_summary.addLabel(label, text, summaryPlace(0, bodyWidth, summaryHeading))
        .points(11)
        .bold()
        .ink(clubBlue);
    endSummaryLine(summaryHeading);
}

void Briefkopf::addSummaryCaption(const QString& label, const QString& caption) {
    m_summary.addLabel(label, caption, summaryPlace(0, summaryCaption, summaryLine))
        .points(bodyPoints)
        .ink(grey);
}

ReportControl& Briefkopf::addSummary(const QString& label, const QString& caption, const QString& value) {
    addSummaryCaption(label, caption);
    const QRect place = summaryPlace(summaryCaption, bodyWidth - summaryCaption, summaryLine);
    endSummaryLine(summaryLine);
    return m_summary.addLabel(value, {}, place).points(bodyPoints).growing(bodyPoints);
}

ReportControl& Briefkopf::addNumber(const QString& label, const QString& caption, const QString& value) {
    addSummaryCaption(label, caption);
    const QRect place = summaryPlace(summaryCaption, summaryValue, summaryLine);
    endSummaryLine(summaryLine);
    return m_summary.addLabel(value, {}, place).points(bodyPoints).align(ReportControl::Align::Right);
}

ReportControl& Briefkopf::addSum(const QString& label, const QString& caption, const QString& sum) {
    addSummaryCaption(label, caption);
    const QRect place = summaryPlace(summaryCaption, summaryValue, summaryLine);
    endSummaryLine(summaryLine);
    return m_summary.addSum(sum, place)
        .points(bodyPoints)
        .bold()
        .format(u"#.##0"_s)
        .align(ReportControl::Align::Right);
}

void Briefkopf::addUnit(const QString& label, const QString& text) {
    const int left = summaryCaption + summaryValue + cellPadding;
    const QRect place(left, m_summary.height() - summaryLine, bodyWidth - left, summaryLine);
    m_summary.addLabel(label, text, place).points(bodyPoints).ink(grey);
}

void Briefkopf::addSummaryRule(const QString& name) {
    const int above = 8;
    endSummaryLine(above);
    m_summary.addLine(name, summaryPlace(0, summaryCaption + summaryValue, 0)).ink(clubBlue);
    endSummaryLine(above);
}

void Briefkopf::addListDescription() {
    addSummary(u"Label16"_s, u"Anzahl der Mitglieder     :"_s, u"lblGefDS"_s);
    addSummary(u"Label17"_s, u"Listenbeschreibung:"_s, u"lblInfo"_s);
}
