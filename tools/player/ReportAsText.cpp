#include "ReportAsText.h"

#include "Clock.h"
#include "ReportDocument.h"

using namespace Qt::StringLiterals;

namespace {

bool showsText(const ReportControl& control) {
    const bool drawn =
        control.kind() == ReportControl::Kind::Line || control.kind() == ReportControl::Kind::Shape;
    return control.isVisible() && !drawn;
}

void appendControls(QStringList& lines, const ReportDocument& document, ReportDocument::Band band) {
    const ReportSection& section = document.section(band);
    std::size_t number = 0;
    for (const ReportControl& control : section.controls()) {
        const std::size_t own = number++;
        if (!showsText(control)) continue;
        lines.append(u"%1.%2 = "_s.arg(section.name(), control.name()) +
                     document.text(band, own, {0, today()}));
    }
}

QString rowAsText(const ReportDocument& document, int row) {
    QStringList texts;
    std::size_t number = 0;
    for (const ReportControl& control : document.section(ReportDocument::Detail).controls()) {
        const std::size_t own = number++;
        if (showsText(control)) texts.append(document.text(ReportDocument::Detail, own, {0, today(), row}));
    }
    return texts.join(u'|');
}

} // namespace

QStringList reportAsText(const ReportDocument& document) {
    QStringList lines;
    appendControls(lines, document, ReportDocument::ReportHeader);
    appendControls(lines, document, ReportDocument::PageHeader);
    for (int row = 0; row < document.rowCount(); ++row) lines.append(rowAsText(document, row));
    appendControls(lines, document, ReportDocument::ReportFooter);
    appendControls(lines, document, ReportDocument::PageFooter);
    return lines;
}
