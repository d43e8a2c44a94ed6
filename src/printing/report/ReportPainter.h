#pragma once

#include "ReportDocument.h"
#include "ReportRuler.h"
#include "ReportTypesetter.h"

class QPainter;

/// Paints pages of a report on any painter: printer, PDF, screen, picture. Reads only the rows of the page.
/// The document must outlive the ReportPainter.
class ReportPainter {
public:
    ReportPainter(const ReportDocument& document, QDate printed);

    /// Paints a page; pages count from 0. The painter's unit must be a tenth of a millimetre and its origin
    /// the sheet's corner. Restores the painter's state.
    void paint(QPainter& painter, int page);

private:
    void paintBand(QPainter& painter, ReportDocument::Band band, int top, const ReportPlace& place);
    void draw(QPainter& painter, const QRectF& area, const ReportControl& control, bool isLast);

    const ReportDocument& m_document;
    QDate m_printed;
    ReportRuler m_ruler;
    ReportTypesetter m_typesetter;
};
