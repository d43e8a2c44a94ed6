#pragma once

#include "ReportControl.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QList>
#include <QPointF>
#include <QRawFont>
#include <map>
#include <vector>

class QPainter;

/// Sets texts into their places, in Arial. It measures without any device, so that a text ends at the same
/// letter on the screen and on paper; and it collects a page's letters to paint all of one font and colour at
/// once, which halves the time that a long list takes to print.
class ReportTypesetter {
public:
    /// Units of the painter to a tenth of a millimetre: fonts have a whole number of units.
    static constexpr int unitsPerTenth = 10;

    /// Takes in a text; `place` in units. One too wide ends in an ellipsis, a number gets smaller letters;
    /// one in a wrapped label takes as many lines as the place holds.
    void set(const QRectF& place, const QString& text, const ReportControl& look);
    /// Paints what was taken in, and forgets it.
    void paint(QPainter& painter);

private:
    struct Letter {
        /// Its place among the fonts: a text may need several, for letters that the first lacks.
        int font;
        quint32 glyph;
        QPointF place;
    };
    /// A text that has been measured, its letters relative to its left end on the base line.
    struct Setting {
        QList<Letter> letters;
        double width = 0;
    };
    struct Face {
        explicit Face(const QFont& wanted);

        QFont font;
        QFontMetricsF metrics;
        QHash<QString, Setting> settings;
    };
    struct Batch {
        int font;
        QRgb ink;
        QList<quint32> glyphs;
        QList<QPointF> positions;
    };

    Face& faceFor(double points, bool bold);
    Setting setting(Face& face, const QString& text);
    Setting measured(Face& face, const QString& text);
    Setting composed(Face& face, const QString& digits);
    Setting fitting(Face& face, const ReportControl& look, const QString& text, double width);
    void setLine(const QRectF& place, const QString& text, const ReportControl& look);
    int numberOf(const QRawFont& font);
    Batch& batchFor(int font, QRgb ink);

    std::map<std::pair<double, bool>, Face> m_faces;
    QList<QRawFont> m_fonts;
    std::vector<Batch> m_batches;
};
