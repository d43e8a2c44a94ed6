#include "ReportFont.h"

#include "ReportTypesetter.h"

#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace ReportFont {

namespace {

constexpr double unitsPerPoint = 254.0 * ReportTypesetter::unitsPerTenth / 72.0;

} // namespace

QFont font(double points, bool bold) {
    QFont font;
    font.setFamilies({u"Arial"_s, u"Liberation Sans"_s, u"Helvetica"_s});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(qRound(points * unitsPerPoint));
    font.setBold(bold);
    // With hinting, letters would be wider on a screen than on paper.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QStringList lines(QString text, const QFont& font, double width, int most) {
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u'\n', QChar::LineSeparator);
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const bool last = lines.size() == most - 1;
        QString part = text.mid(line.textStart(), last ? -1 : line.textLength());
        // The space at the break would make a full line too long.
        if (!last && part.endsWith(u' ')) part.chop(1);
        lines.append(part);
        if (last) break;
    }
    layout.endLayout();
    return lines;
}

} // namespace ReportFont
