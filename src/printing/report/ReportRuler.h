#pragma once

#include "ReportControl.h"

#include <QList>
#include <QRectF>
#include <vector>

class QPainter;

/// Draws rules and frames on whole pixels of the device, never thinner than one pixel, so that rules of one
/// width look alike all over the page at any zoom. Collects a page's rules and paints all of one colour at
/// once.
class ReportRuler {
public:
    /// Adds a rule; `from`, `to` and `width` are in the painter's units. The rule is centred on the line
    /// between its ends, and two rules that meet fill the corner. Don't transform the painter before paint().
    void addRule(const QPainter& painter, const QPointF& from, const QPointF& to, double width, QRgb ink);
    void addFrame(const QPainter& painter, const QRectF& frame, double width, QRgb ink);
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
