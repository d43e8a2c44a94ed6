#pragma once

#include "ReportDocument.h"
#include "ReportRuler.h"
#include "ReportTypesetter.h"

class QPainter;

/// Paints pages of a report on any painter: printer, PDF, screen, picture. Only the rows of the page are
/// looked at. The document must outlive it.
class ReportPainter {
public:
    ReportPainter(const ReportDocument& document, QDate printed);

    /// A page, from 0. The painter's unit must be a tenth of a millimetre, its origin the sheet's corner; its
    /// state is left as it was.
    void paint(QPainter& painter, int page);

private:
    void paintBand(QPainter& painter, ReportDocument::Band band, int top, const ReportPlace& place);
    void draw(QPainter& painter, const QRectF& area, const ReportControl& control, bool isLast);

    const ReportDocument& m_document;
    QDate m_printed;
    ReportRuler m_ruler;
    ReportTypesetter m_typesetter;
};
