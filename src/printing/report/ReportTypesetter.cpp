#include "ReportTypesetter.h"

#include <QGlyphRun>
#include <QPainter>
#include <QTextLayout>
#include <cmath>

namespace {

constexpr double unitsPerPoint = 254.0 * ReportTypesetter::unitsPerTenth / 72.0;
/// Names and months repeat, other texts don't; so what was measured is kept, but not for ever.
constexpr int settingsKept = 8192;
constexpr double endless = 1e6;

QFont fontOf(const ReportControl& look) {
    QFont font;
    font.setFamilies({u"Arial"_qs, u"Liberation Sans"_qs, u"Helvetica"_qs});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(qRound(look.points() * unitsPerPoint));
    font.setBold(look.isBold());
    // Letters moved to whole pixels would be broader on a screen than on paper.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

// A break or a tab in a text must not take it out of its line.
QString onOneLine(QString text) {
    const auto breaks = [](QChar sign) {
        return sign < u' ' || sign == QChar::LineSeparator || sign == QChar::ParagraphSeparator;
    };
    std::replace_if(text.begin(), text.end(), breaks, QChar(u' '));
    return text;
}

bool isNumber(const QString& text) {
    return text.size() > 1 &&
           std::all_of(text.begin(), text.end(), [](QChar sign) { return sign >= u'0' && sign <= u'9'; });
}

double leftEnd(const QRectF& place, double width, ReportControl::Align align) {
    switch (align) {
    case ReportControl::Align::Right:
        return place.right() - width;
    case ReportControl::Align::Centre:
        return place.center().x() - width / 2;
    case ReportControl::Align::Left:
        break;
    }
    return place.left();
}

// The text cut into lines at its own breaks and between words. The last one that there is room for takes
// all the rest.
QStringList linesOf(QString text, const QFont& font, double width, int most) {
    text.replace(u"\r\n"_qs, u"\n"_qs).replace(u'\r', u'\n').replace(u'\n', QChar::LineSeparator);
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const bool last = lines.size() == most - 1;
        QString part = text.mid(line.textStart(), last ? -1 : line.textLength());
        // The blank at which it was broken would make a full line too long.
        if (!last && part.endsWith(u' ')) part.chop(1);
        lines.append(part);
        if (last) break;
    }
    layout.endLayout();
    return lines;
}

/// As many of the last words as fit in so many lines.
QString endThatFits(const QString& text, const QFont& font, double width, int most) {
    const auto fits = [&](const QString& part) {
        return linesOf(part, font, width, most + 1).size() <= most;
    };
    QString end = text;
    for (qsizetype blank = 0; !fits(end) && blank >= 0;) {
        blank = text.indexOf(u' ', blank + 1);
        if (blank >= 0) end = u'…' + text.mid(blank);
    }
    return end;
}

} // namespace

ReportTypesetter::Face::Face(const QFont& wanted)
    : font(wanted)
    , metrics(wanted) {}

ReportTypesetter::Face& ReportTypesetter::faceFor(const ReportControl& look) {
    const auto key = std::pair(look.points(), look.isBold());
    const auto found = m_faces.find(key);
    return found != m_faces.end() ? found->second : m_faces.emplace(key, fontOf(look)).first->second;
}

ReportTypesetter::Setting ReportTypesetter::setting(Face& face, const QString& text) {
    if (isNumber(text)) return composed(face, text);
    const auto found = face.settings.constFind(text);
    if (found != face.settings.constEnd()) return *found;
    if (face.settings.size() >= settingsKept) face.settings.clear();
    return *face.settings.insert(text, measured(face, text));
}

ReportTypesetter::Setting ReportTypesetter::measured(Face& face, const QString& text) {
    QTextLayout layout(text, face.font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(endless);
    line.setPosition({0, -line.ascent()});
    layout.endLayout();
    Setting set{{}, line.naturalTextWidth()};
    for (const QGlyphRun& run : layout.glyphRuns()) {
        const int font = numberOf(run.rawFont());
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> places = run.positions();
        for (qsizetype one = 0; one < glyphs.size(); ++one)
            set.letters.append({font, glyphs[one], places[one]});
    }
    return set;
}

/// Numbers hardly repeat, so they are set digit by digit: much quicker than measuring each, and the digits of
/// a column stand below each other, which a font that moves them closer together would spoil.
ReportTypesetter::Setting ReportTypesetter::composed(Face& face, const QString& digits) {
    Setting number;
    number.letters.reserve(digits.size());
    for (const QChar digit : digits) {
        const Setting one = setting(face, digit);
        for (Letter letter : one.letters) {
            letter.place.rx() += number.width;
            number.letters.append(letter);
        }
        number.width += one.width;
    }
    return number;
}

ReportTypesetter::Setting ReportTypesetter::fitting(Face& face, const QString& text, double width) {
    Setting whole = setting(face, text);
    if (whole.width <= width) return whole;
    return setting(face, face.metrics.elidedText(text, Qt::ElideRight, width));
}

void ReportTypesetter::set(const QRectF& place, const QString& text, const ReportControl& look) {
    if (text.isEmpty()) return;
    Face& face = faceFor(look);
    if (!look.isWrapped()) {
        setLine(face, place, onOneLine(text), look);
        return;
    }
    const double height = face.metrics.lineSpacing();
    const int most = std::max(1, static_cast<int>(place.height() / height));
    QRectF line(place.topLeft(), QSizeF(place.width(), height));
    const QString shown = look.keepsEnd() ? endThatFits(text, face.font, place.width(), most) : text;
    for (const QString& part : linesOf(shown, face.font, place.width(), most)) {
        setLine(face, line, onOneLine(part), look);
        line.translate(0, height);
    }
}

void ReportTypesetter::setLine(Face& face, const QRectF& place, const QString& text,
                               const ReportControl& look) {
    const Setting fit = fitting(face, text, place.width());
    const double letters = face.metrics.ascent() + face.metrics.descent();
    const QPointF start(leftEnd(place, fit.width, look.align()),
                        place.top() + (place.height() - letters) / 2 + face.metrics.ascent());
    Batch* batch = nullptr;
    for (const Letter& letter : fit.letters) {
        if (!batch || batch->font != letter.font) batch = &batchFor(letter.font, look.ink());
        batch->glyphs.append(letter.glyph);
        // To whole units, finer than any eye: fractions would take up half of a PDF and of the time to write
        // it.
        batch->positions.append((start + letter.place).toPoint());
    }
}

int ReportTypesetter::numberOf(const QRawFont& font) {
    const auto known = m_fonts.indexOf(font);
    if (known >= 0) return static_cast<int>(known);
    m_fonts.append(font);
    return static_cast<int>(m_fonts.size()) - 1;
}

ReportTypesetter::Batch& ReportTypesetter::batchFor(int font, QRgb ink) {
    for (Batch& batch : m_batches) {
        if (batch.ink == ink && batch.font == font) return batch;
    }
    return m_batches.emplace_back(Batch{font, ink, {}, {}});
}

void ReportTypesetter::paint(QPainter& painter) {
    for (const Batch& batch : m_batches) {
        QGlyphRun run;
        run.setRawFont(m_fonts[batch.font]);
        run.setGlyphIndexes(batch.glyphs);
        run.setPositions(batch.positions);
        painter.setPen(QColor(batch.ink));
        painter.drawGlyphRun({}, run);
    }
    m_batches.clear();
}
