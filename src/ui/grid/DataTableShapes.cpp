#include "DataTableShapes.h"

#include <QPainter>
#include <QPainterPath>

namespace DataTableShapes {

void text(QPainter& painter, const QRect& cell, Qt::Alignment side, const QString& text) {
    const QRect room = cell.adjusted(padding, 0, -padding, 0);
    if (room.width() <= 0) return;
    const QString shown = painter.fontMetrics().elidedText(text, Qt::ElideRight, room.width());
    painter.drawText(room, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

void triangle(QPainter& painter, const QRect& place, int turn, const QColor& colour) {
    QPainterPath path(QPointF(-2.5, -4));
    path.lineTo(QPointF(3, 0));
    path.lineTo(QPointF(-2.5, 4));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(place).center());
    painter.rotate(turn);
    painter.fillPath(path, colour);
    painter.restore();
}

} // namespace DataTableShapes
