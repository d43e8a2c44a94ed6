#pragma once

#include "ReportDocument.h"
#include "ReportTypesetter.h"

#include <map>

class QPainter;

/// Paints pages of a report on any painter: printer, PDF, screen, picture. Reads only the rows of the page.
/// Rules and frames lie on whole pixels of the device and are never thinner than one, so that rules of one
/// width look alike all over the page at any zoom. The document must outlive the ReportPainter.
class ReportPainter {
public:
    ReportPainter(const ReportDocument& document, QDate printed)
        : m_document(document)
        , m_printed(printed) {}

    /// Paints a page; pages count from 0. The painter's unit must be a tenth of a millimetre and its origin
    /// the sheet's corner. Restores the painter's state.
    void paint(QPainter& painter, int page);

private:
    struct LighterFirst {
        bool operator()(QRgb one, QRgb other) const;
    };

    void draw(QPainter& painter, const QRectF& area, const ReportControl& control, bool isLast);
    void drawShape(QPainter& painter, const QRectF& area, const ReportLook& look);
    void addRule(const QPainter& painter, const QPointF& from, const QPointF& to, int tenths, QRgb ink);
    void paintRules(QPainter& painter);

    const ReportDocument& m_document;
    QDate m_printed;
    /// The rules of a page, to be painted all of one colour at once.
    std::map<QRgb, QList<QRectF>, LighterFirst> m_rules;
    ReportTypesetter m_typesetter;
};
