#include "ReportRuler.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

void ReportRuler::addRule(const QPainter& painter, const QPointF& from, const QPointF& to, double width,
                          QRgb ink) {
    const QTransform toDevice = painter.deviceTransform();
    const double pixels = std::max(1.0, std::round(width * std::hypot(toDevice.m11(), toDevice.m12())));
    const auto corner = [&](const QPointF& end) {
        const QPointF mapped = toDevice.map(end) - QPointF(pixels, pixels) / 2;
        return QPointF(std::round(mapped.x()), std::round(mapped.y()));
    };
    const QRectF rule(corner(from), corner(to) + QPointF(pixels, pixels));
    auto batch = std::find_if(m_batches.begin(), m_batches.end(),
                              [ink](const Batch& known) { return known.ink == ink; });
    if (batch == m_batches.end()) batch = m_batches.insert(batch, {ink, {}});
    batch->rules.append(toDevice.inverted().mapRect(rule));
}

void ReportRuler::addFrame(const QPainter& painter, const QRectF& frame, double width, QRgb ink) {
    addRule(painter, frame.topLeft(), frame.topRight(), width, ink);
    addRule(painter, frame.bottomLeft(), frame.bottomRight(), width, ink);
    addRule(painter, frame.topLeft(), frame.bottomLeft(), width, ink);
    addRule(painter, frame.topRight(), frame.bottomRight(), width, ink);
}

void ReportRuler::fill(QPainter& painter, const QRectF& area, QRgb ground) const {
    if (qAlpha(ground) == 0) return;
    const QTransform toDevice = painter.deviceTransform();
    const QRect pixels = toDevice.mapRect(area).toRect();
    painter.fillRect(toDevice.inverted().mapRect(QRectF(pixels)), QColor::fromRgba(ground));
}

void ReportRuler::paint(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    std::sort(m_batches.begin(), m_batches.end(),
              [](const Batch& one, const Batch& other) { return qGray(one.ink) > qGray(other.ink); });
    for (const Batch& batch : m_batches) {
        painter.setBrush(QColor(batch.ink));
        painter.drawRects(batch.rules);
    }
    m_batches.clear();
}
