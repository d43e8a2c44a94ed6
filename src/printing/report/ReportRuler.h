#pragma once

#include "ReportControl.h"

#include <QList>
#include <QRectF>
#include <vector>

class QPainter;

/// Draws rules and frames on whole pixels of the device, never thinner than one: rules of one breadth look
/// alike all over the page at any zoom. Collects a page's rules and paints all of one colour at once.
class ReportRuler {
public:
    /// `breadth` in the painter's units, like the ends; the rule is centred between them, and two that meet
    /// fill the corner. The painter must stay as it is until paint().
    void addRule(const QPainter& painter, const QPointF& from, const QPointF& to, double breadth, QRgb ink);
    void addFrame(const QPainter& painter, const QRectF& frame, double breadth, QRgb ink);
    void fill(QPainter& painter, const QRectF& area, QRgb ground) const;
    /// Paints the rules, dark ones over light ones, and forgets them.
    void paint(QPainter& painter);

private:
    struct Batch {
        QRgb ink;
        QList<QRectF> rules;
    };

    std::vector<Batch> m_batches;
};
