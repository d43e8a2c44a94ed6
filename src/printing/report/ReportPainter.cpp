#include "ReportPainter.h"

#include "ReportPaper.h"

#include <QPainter>

namespace {

QRectF inUnits(const QRect& place, int top) {
    constexpr int unit = ReportTypesetter::unitsPerTenth;
    return {double(place.x()) * unit, double(place.y() + top) * unit, double(place.width()) * unit,
            double(place.height()) * unit};
}

} // namespace

ReportPainter::ReportPainter(const ReportDocument& document, QDate printed)
    : m_document(document)
    , m_printed(printed) {}

void ReportPainter::paint(QPainter& painter, int page) {
    constexpr double scale = 1.0 / ReportTypesetter::unitsPerTenth;
    const ReportPage layout = m_document.layout().page(page);
    ReportPlace place{page, m_printed};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.scale(scale, scale);
    if (layout.hasReportHeader) paintBand(painter, ReportDocument::ReportHeader, 0, place);
    paintBand(painter, ReportDocument::PageHeader, layout.pageHeaderTop, place);
    const int rowHeight = m_document.section(ReportDocument::Detail).height();
    for (int row = 0; row < layout.rowCount; ++row) {
        place.row = layout.firstRow + row;
        place.isLastOnPage = row == layout.rowCount - 1;
        paintBand(painter, ReportDocument::Detail, layout.detailTop + row * rowHeight, place);
    }
    place = {page, m_printed};
    if (layout.hasReportFooter)
        paintBand(painter, ReportDocument::ReportFooter, layout.reportFooterTop, place);
    paintBand(painter, ReportDocument::PageFooter, layout.pageFooterTop, place);
    m_ruler.paint(painter);
    m_typesetter.paint(painter);
    painter.restore();
}

void ReportPainter::paintBand(QPainter& painter, ReportDocument::Band band, int top,
                              const ReportPlace& place) {
    std::size_t number = 0;
    for (const ReportControl& control : m_document.section(band).controls()) {
        const std::size_t own = number++;
        if (!control.isVisible()) continue;
        const QRectF area = inUnits(control.place().translated(ReportPaper::left, ReportPaper::top), top);
        if (control.kind() == ReportControl::Kind::Line || control.kind() == ReportControl::Kind::Shape)
            draw(painter, area, control, place.isLastOnPage);
        else
            m_typesetter.set(area, m_document.text(band, own, place), control);
    }
}

void ReportPainter::draw(QPainter& painter, const QRectF& area, const ReportControl& control, bool isLast) {
    const bool closes = isLast && qAlpha(control.closingInk()) > 0;
    const int tenths = closes ? ReportControl::usualLineWidth : control.lineWidth();
    const double width = double(tenths) * ReportTypesetter::unitsPerTenth;
    if (control.kind() == ReportControl::Kind::Line) {
        const bool upright = area.height() > area.width();
        m_ruler.addRule(painter, area.topLeft(), upright ? area.bottomLeft() : area.topRight(), width,
                        closes ? control.closingInk() : control.ink());
        return;
    }
    m_ruler.fill(painter, area, control.ground());
    if (width > 0) m_ruler.addFrame(painter, area, width, control.ink());
}
