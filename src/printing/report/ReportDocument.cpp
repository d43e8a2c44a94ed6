#include "ReportDocument.h"

#include "Format.h"
#include "ReportGrowth.h"
#include "ReportPaper.h"
#include "RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int noField = -1;

std::array<ReportSection, 5> grown(std::array<ReportSection, 5> sections) {
    for (ReportSection& section : sections) growToTexts(section);
    return sections;
}

ReportHeights heightsOf(const std::array<ReportSection, 5>& sections) {
    ReportHeights heights;
    heights.body = ReportPaper::bodyHeight;
    heights.reportHeader = sections[ReportDocument::ReportHeader].height();
    heights.pageHeader = sections[ReportDocument::PageHeader].height();
    heights.detail = sections[ReportDocument::Detail].height();
    heights.pageFooter = sections[ReportDocument::PageFooter].height();
    heights.reportFooter = sections[ReportDocument::ReportFooter].height();
    return heights;
}

} // namespace

ReportDocument::ReportDocument(const QString& caption, const std::array<ReportSection, 5>& sections,
                               std::shared_ptr<const ReportRows> rows)
    : m_caption(caption)
    , m_sections(grown(sections))
    , m_rows(std::move(rows))
    , m_layout(m_rows->rowCount(), heightsOf(m_sections)) {
    for (std::size_t band = 0; band < m_sections.size(); ++band) {
        for (const ReportControl& control : m_sections[band].controls()) resolve(control, m_fields[band]);
    }
}

void ReportDocument::resolve(const ReportControl& control, std::vector<int>& fields) const {
    fields.push_back(noField);
    if (control.dataField().isEmpty()) return;
    const std::optional<int> field = m_rows->fieldIndex(control.dataField());
    if (!field) throw runtimeError(RuntimeError::itemNotFound, control.dataField());
    if (control.kind() == ReportControl::Kind::Sum && !m_rows->sum(*field))
        throw runtimeError(RuntimeError::typesDiffer);
    fields.back() = *field;
}

QString ReportDocument::text(Band band, std::size_t control, const ReportPlace& place) const {
    const ReportControl& shown = m_sections[band].controls()[control];
    switch (shown.kind()) {
    case ReportControl::Kind::Label:
        return labelText(shown, place);
    case ReportControl::Kind::Sum:
        return sumText(shown, m_fields[band][control]);
    case ReportControl::Kind::Text:
        return rowText(shown, m_fields[band][control], place.row);
    case ReportControl::Kind::Line:
    case ReportControl::Kind::Shape:
        break;
    }
    return {};
}

QString ReportDocument::sumText(const ReportControl& control, int field) const {
    return field == noField ? QString() : Format(m_rows->sum(field).value(), control.format());
}

QString ReportDocument::rowText(const ReportControl& control, int field, int row) const {
    if (field == noField || row < 0) return {};
    const Value value = m_rows->value(row, field);
    const bool asItIs = value.kind() == Value::Kind::Text && control.format().isEmpty();
    return asItIs ? value.text() : Format(value, control.format());
}

// No inserted text holds a % that the next replacement could take for its own.
QString ReportDocument::labelText(const ReportControl& label, const ReportPlace& place) const {
    QString text = label.caption();
    if (!label.hasPageNumbers()) return text;
    text.replace(u"%p"_s, QString::number(place.page + 1));
    text.replace(u"%P"_s, QString::number(pageCount()));
    text.replace(u"%d"_s, place.printed.toString(u"dd.MM.yyyy"_s));
    return text;
}
