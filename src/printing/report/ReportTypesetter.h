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

/// Sets texts into their places, in Arial. Measures independently of any device, so that a text ends at the
/// same letter on the screen and on paper. Collects a page's letters and paints all of one font and colour at
/// once, which halves the time that a long list takes to print.
class ReportTypesetter {
public:
    /// Units of the painter in a tenth of a millimetre. Tenths are too coarse: font sizes are whole units.
    static constexpr int unitsPerTenth = 10;

    /// The font of all reports, measured in units.
    static QFont font(double points, bool bold);
    /// Breaks a text into at most `most` lines, at its own line breaks and between words. The last line takes
    /// all the rest.
    static QStringList lines(QString text, const QFont& font, double width, int most);

    /// Adds a text; `place` is in units. A text too wide ends in an ellipsis, a number too wide gets smaller
    /// letters, and a wrapped label takes as many lines as its place holds.
    void set(const QRectF& place, const QString& text, const ReportLook& look);
    /// Paints the texts added and forgets them.
    void paint(QPainter& painter);

private:
    struct Letter {
        /// Number of its font: a text may need several fonts, for letters that the first one lacks.
        int font;
        quint32 glyph;
        QPointF place;
    };
    /// A measured text. Its letters are relative to its left end on the baseline.
    struct Setting {
        QList<Letter> letters;
        double width = 0;
    };
    struct Face {
        QFont font;
        QFontMetricsF metrics{font};
        QHash<QString, Setting> settings = {};
    };
    struct Batch {
        int font;
        QRgb ink;
        QList<quint32> glyphs = {};
        QList<QPointF> positions = {};
    };

    Face& faceFor(double points, bool bold);
    Setting setting(Face& face, const QString& text);
    Setting measured(Face& face, const QString& text);
    Setting composed(Face& face, const QString& digits);
    Setting fitting(Face& face, const ReportLook& look, const QString& text, double width);
    void setLine(const QRectF& place, const QString& text, const ReportLook& look);
    int numberOf(const QRawFont& font);
    Batch& batchFor(int font, QRgb ink);

    std::map<std::pair<double, bool>, Face> m_faces;
    QList<QRawFont> m_fonts;
    std::vector<Batch> m_batches;
};
