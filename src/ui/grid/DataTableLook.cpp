#include "DataTableLook.h"

#include "Theme.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>

namespace {

bool isDark(const QPalette& palette) { return palette.color(QPalette::Base).lightness() < 128; }

QPixmap loadedPicture(const QString& path, QSize room, double ratio) {
    const QString key =
        QStringLiteral("%1|%2x%3@%4").arg(path).arg(room.width()).arg(room.height()).arg(ratio);
    QPixmap picture;
    if (QPixmapCache::find(key, &picture)) return picture;
    // Paths in the program use either slash.
    picture = QPixmap(QString(path).replace(u'\\', u'/'));
    if (picture.isNull()) return picture;
    const QSize fitting = picture.size().scaled(room, Qt::KeepAspectRatio).boundedTo(picture.size());
    picture = picture.scaled(fitting * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    QPixmapCache::insert(key, picture);
    return picture;
}

} // namespace

DataTableLook::DataTableLook(const QPalette& palette) {
    const QColor base = palette.color(QPalette::Base);
    const QColor ink = palette.color(QPalette::Text);
    const QColor blue = Theme::blue();
    const QColor deep = Theme::darkBlue();
    const bool dark = isDark(palette);

    even = base;
    odd = dark ? Theme::mixed(base, deep, 0.16) : Theme::mixed(base, blue, 0.12);
    text = ink;
    rule = Theme::mixed(base, ink, dark ? 0.14 : 0.11);
    gutter = dark ? Theme::mixed(base, deep, 0.40) : Theme::mixed(base, blue, 0.30);
    gutterEdge = dark ? Theme::mixed(base, blue, 0.26) : Theme::mixed(base, blue, 0.80);
    mark = dark ? blue : deep;
    band = dark ? Theme::mixed(base, deep, 0.62) : Theme::mixed(base, blue, 0.42);
    bandText = dark ? Theme::mixed(blue, Qt::white, 0.4) : Theme::mixed(deep, Qt::black, 0.35);
    head = deep;
    headText = Qt::white;
    headEdge = Theme::mixed(deep, Qt::white, 0.25);
    childText = Qt::black;
    childRule = Theme::mixed(blue, deep, 0.30);
    focus = Theme::accent();
}

// Child tables have a light ground on a dark desktop, too, where the accent would be lost on it.
QColor DataTableLook::marked(const QColor& back) const {
    constexpr int middle = 128;
    const bool lost = back.lightness() > middle && Theme::mode() == Theme::Mode::Dark;
    return Theme::mixed(back, lost ? Theme::darkBlue() : focus, 0.3);
}

namespace DataTableShapes {

void text(QPainter& painter, const QRect& cell, Qt::Alignment alignment, const QString& text) {
    const QRect room = cell.adjusted(DataTableLook::padding, 0, -DataTableLook::padding, 0);
    if (room.width() <= 0 || text.isEmpty()) return;
    const QString shown = painter.fontMetrics().elidedText(text, Qt::ElideRight, room.width());
    painter.drawText(room, static_cast<int>(alignment) | Qt::TextSingleLine, shown);
}

namespace {

/// Pointing right, and turned by so many degrees.
void triangle(QPainter& painter, QPointF centre, int turn, const QColor& colour) {
    QPainterPath path(QPointF(-2.5, -4));
    path.lineTo(QPointF(3, 0));
    path.lineTo(QPointF(-2.5, 4));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(centre);
    painter.rotate(turn);
    painter.fillPath(path, colour);
    painter.restore();
}

} // namespace

void currentMark(QPainter& painter, const QRect& gutter, const QColor& colour) {
    triangle(painter, QRectF(gutter).center(), 0, colour);
}

void sortMark(QPainter& painter, const QRect& place, Qt::SortOrder order, const QColor& colour) {
    triangle(painter, QRectF(place).center(), order == Qt::AscendingOrder ? -90 : 90, colour);
}

void expandMark(QPainter& painter, const QRect& gutter, bool open, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(QRectF(gutter).center());
    if (open) painter.rotate(90);
    const QPointF angle[] = {{-2, -4}, {2, 0}, {-2, 4}};
    painter.drawPolyline(angle, 3);
    painter.restore();
}

void tick(QPainter& painter, const QRect& cell, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(QRectF(cell).center());
    const QPointF angle[] = {{-4, 0}, {-1, 3}, {5, -4}};
    painter.drawPolyline(angle, 3);
    painter.restore();
}

void picture(QPainter& painter, const QRect& cell, const QString& path) {
    const QRect room = cell.adjusted(0, 2, 0, -2);
    if (path.trimmed().isEmpty() || room.isEmpty()) return;
    const QPixmap picture = loadedPicture(path, room.size(), painter.device()->devicePixelRatioF());
    if (picture.isNull()) return;
    QRectF place(QPointF(0, 0), picture.deviceIndependentSize());
    place.moveCenter(QRectF(room).center());
    painter.drawPixmap(place.toRect(), picture);
}

void frame(QPainter& painter, const QRect& row, const QColor& colour) {
    painter.save();
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(row).adjusted(1, 1, -1, -1));
    painter.restore();
}

} // namespace DataTableShapes
