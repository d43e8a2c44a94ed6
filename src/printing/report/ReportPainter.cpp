#include "ReportPainter.h"

#include "ReportPaper.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

constexpr double unit = ReportTypesetter::unitsPerTenth;

} // namespace

void ReportPainter::paint(QPainter& painter, int page) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.scale(1 / unit, 1 / unit);
    for (const ReportLayout::Strip& strip : m_document.layout().page(page)) {
        const QPoint corner(ReportPaper::left, ReportPaper::top + strip.top);
        for (const ReportControl& control : m_document.section(strip.band).controls) {
            const QRect place = control.place.translated(corner);
            const QRectF area(place.x() * unit, place.y() * unit, place.width() * unit,
                              place.height() * unit);
            if (control.showsText())
                m_typesetter.set(area, m_document.text(control, {page, m_printed, strip.row}), control.look);
            else
                draw(painter, area, control, strip.isLast);
        }
    }
    paintRules(painter);
    m_typesetter.paint(painter);
    painter.restore();
}

void ReportPainter::draw(QPainter& painter, const QRectF& area, const ReportControl& control, bool isLast) {
    if (control.kind == ReportControl::Kind::Shape) return drawShape(painter, area, control.look);
    const bool closes = isLast && control.look.closingInk != 0;
    const bool upright = area.height() > area.width();
    addRule(painter, area.topLeft(), upright ? area.bottomLeft() : area.topRight(),
            closes ? ReportLook().lineWidth : control.look.lineWidth,
            closes ? control.look.closingInk : control.look.ink);
}

void ReportPainter::drawShape(QPainter& painter, const QRectF& area, const ReportLook& look) {
    const QTransform toDevice = painter.deviceTransform();
    const QRect pixels = toDevice.mapRect(area).toRect();
    painter.fillRect(toDevice.inverted().mapRect(QRectF(pixels)), QColor::fromRgba(look.ground));
    for (const auto& [from, to] : {std::pair(area.topLeft(), area.topRight()),
                                   {area.bottomLeft(), area.bottomRight()},
                                   {area.topLeft(), area.bottomLeft()},
                                   {area.topRight(), area.bottomRight()}})
        addRule(painter, from, to, look.lineWidth, look.ink);
}

// The rule is centred on the line between its ends, and two rules that meet fill the corner.
void ReportPainter::addRule(const QPainter& painter, const QPointF& from, const QPointF& to, int tenths,
                            QRgb ink) {
    const QTransform toDevice = painter.deviceTransform();
    const double width = tenths * unit * std::hypot(toDevice.m11(), toDevice.m12());
    const double pixels = std::max(1.0, std::round(width));
    const auto corner = [&](const QPointF& end) {
        const QPointF mapped = toDevice.map(end) - QPointF(pixels, pixels) / 2;
        return QPointF(std::round(mapped.x()), std::round(mapped.y()));
    };
    const QRectF rule(corner(from), corner(to) + QPointF(pixels, pixels));
    m_rules[ink].append(toDevice.inverted().mapRect(rule));
}

bool ReportPainter::LighterFirst::operator()(QRgb one, QRgb other) const {
    return std::pair(-qGray(one), one) < std::pair(-qGray(other), other);
}

void ReportPainter::paintRules(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    for (const auto& [ink, rules] : m_rules) {
        painter.setBrush(QColor(ink));
        painter.drawRects(rules);
    }
    m_rules.clear();
}
