#include "ReportAsText.h"

#include "Clock.h"
#include "ReportDocument.h"

using namespace Qt::StringLiterals;

namespace {

void appendControls(QStringList& lines, const ReportDocument& document, ReportLayout::Band band) {
    const ReportSection& section = document.section(band);
    for (const ReportControl& control : section.controls)
        if (control.showsText())
            lines.append(u"%1.%2 = "_s.arg(section.name, control.name) +
                         document.text(control, {0, today()}));
}

QString rowAsText(const ReportDocument& document, int row) {
    QStringList texts;
    for (const ReportControl& control : document.section(ReportLayout::Detail).controls)
        if (control.showsText()) texts.append(document.text(control, {0, today(), row}));
    return texts.join(u'|');
}

} // namespace

QStringList reportAsText(const ReportDocument& document) {
    QStringList lines;
    appendControls(lines, document, ReportLayout::ReportHeader);
    appendControls(lines, document, ReportLayout::PageHeader);
    for (int row = 0; row < document.rowCount(); ++row) lines.append(rowAsText(document, row));
    appendControls(lines, document, ReportLayout::ReportFooter);
    appendControls(lines, document, ReportLayout::PageFooter);
    return lines;
}
