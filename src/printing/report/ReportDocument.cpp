#include "ReportDocument.h"

#include "Format.h"
#include "ReportPaper.h"
#include "ReportTypesetter.h"
#include "RuntimeError.h"

#include <QFontMetricsF>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// Gives a growing label the size of letters that its text needs. Returns the height of the lines that it
/// needs beyond the first one.
int fitLetters(ReportControl& label) {
    constexpr double step = 0.5;
    constexpr int unit = ReportTypesetter::unitsPerTenth;
    double& points = label.look.points;
    const auto linesNow = [&] {
        return ReportTypesetter::lines(label.caption, ReportTypesetter::font(points, label.look.bold),
                                       double(label.place.width()) * unit, std::numeric_limits<int>::max())
            .size();
    };
    qsizetype lines = linesNow();
    for (; lines > 1 && points > label.look.leastPoints; lines = linesNow())
        points = std::max(label.look.leastPoints, points - step);
    const QFontMetricsF metrics(ReportTypesetter::font(points, label.look.bold));
    return int(std::ceil(double(lines - 1) * metrics.lineSpacing() / unit));
}

/// Gives each growing label the place that its text needs. The controls below it move down, and the section
/// grows by the same height.
void growToTexts(ReportSection& section) {
    for (ReportControl& label : section.controls) {
        if (label.look.leastPoints == 0 || label.caption.isEmpty()) continue;
        const int bottom = label.place.bottom();
        const int more = fitLetters(label);
        label.place.setHeight(label.place.height() + more);
        for (ReportControl& below : section.controls)
            if (below.place.top() > bottom) below.place.translate(0, more);
        section.height += more;
    }
}

void resolveField(ReportControl& control, const ReportRows& rows) {
    if (control.dataField.isEmpty()) return;
    control.field = rows.fieldIndex(control.dataField);
    if (control.field < 0) throw runtimeError(RuntimeError::itemNotFound, control.dataField);
    if (control.kind == ReportControl::Kind::Sum && !rows.sum(control.field))
        throw runtimeError(RuntimeError::typesDiffer);
}

ReportDocument::Sections finished(ReportDocument::Sections sections, const ReportRows& rows) {
    for (ReportSection& section : sections) {
        growToTexts(section);
        for (ReportControl& control : section.controls) resolveField(control, rows);
    }
    return sections;
}

std::array<int, 5> heightsOf(const ReportDocument::Sections& sections) {
    std::array<int, 5> heights;
    std::ranges::transform(sections, heights.begin(), &ReportSection::height);
    return heights;
}

} // namespace

ReportDocument::ReportDocument(const QString& caption, const Sections& sections,
                               std::shared_ptr<const ReportRows> rows)
    : m_caption(caption)
    , m_sections(finished(sections, *rows))
    , m_rows(std::move(rows))
    , m_layout(m_rows->rowCount(), ReportPaper::bodyHeight, heightsOf(m_sections)) {}

QString ReportDocument::text(const ReportControl& control, const ReportPlace& place) const {
    if (control.kind == ReportControl::Kind::Label) return labelText(control, place);
    if (control.field < 0) return {};
    const bool isSum = control.kind == ReportControl::Kind::Sum;
    const Value value = isSum ? Value(*m_rows->sum(control.field)) : m_rows->value(place.row, control.field);
    const bool asItIs = value.kind() == Value::Kind::Text && control.look.format.isEmpty();
    return asItIs ? value.text() : Format(value, control.look.format);
}

// No inserted text holds a % that the next replacement could take for its own.
QString ReportDocument::labelText(const ReportControl& label, const ReportPlace& place) const {
    QString text = label.caption;
    if (!label.look.pageNumbers) return text;
    text.replace(u"%p"_s, QString::number(place.page + 1));
    text.replace(u"%P"_s, QString::number(pageCount()));
    text.replace(u"%d"_s, place.printed.toString(u"dd.MM.yyyy"_s));
    return text;
}
