#include "ReportTypesetter.h"

#include "ReportPaper.h"

#include <QGlyphRun>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The most measured texts to keep: names and months repeat, other texts hardly ever.
constexpr int settingsKept = 8192;
constexpr double endless = 1e6;

// A line break or a tab in a text must not take it out of its line.
QString onOneLine(QString text) {
    const auto breaks = [](QChar sign) {
        return sign < u' ' || sign == QChar::LineSeparator || sign == QChar::ParagraphSeparator;
    };
    std::replace_if(text.begin(), text.end(), breaks, QChar(u' '));
    return text;
}

bool isDigit(QChar sign) { return sign >= u'0' && sign <= u'9'; }

bool hasOnlyDigits(const QString& text) {
    return text.size() > 1 && std::all_of(text.begin(), text.end(), &isDigit);
}

// Days, codes and telephone numbers count as numbers too, even with letters between their digits.
bool isNumber(const QString& text) {
    const auto letters = std::count_if(text.begin(), text.end(), [](QChar sign) { return sign.isLetter(); });
    return std::count_if(text.begin(), text.end(), &isDigit) > letters;
}

double leftEnd(const QRectF& place, double width, ReportLook::Align align) {
    if (align == ReportLook::Align::Right) return place.right() - width;
    if (align == ReportLook::Align::Centre) return place.center().x() - width / 2;
    return place.left();
}

} // namespace

QFont ReportTypesetter::font(double points, bool bold) {
    constexpr double unitsPerPoint = ReportPaper::tenthsPerInch * unitsPerTenth / 72;
    QFont font;
    font.setFamilies({u"Arial"_s, u"Liberation Sans"_s, u"Helvetica"_s});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(qRound(points * unitsPerPoint));
    font.setBold(bold);
    // With hinting, letters would be wider on a screen than on paper.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QStringList ReportTypesetter::lines(QString text, const QFont& font, double width, int most) {
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u'\n', QChar::LineSeparator);
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
        // The space at the break would make a full line too long.
        if (!last && part.endsWith(u' ')) part.chop(1);
        lines.append(part);
        if (last) break;
    }
    layout.endLayout();
    return lines;
}

ReportTypesetter::Face& ReportTypesetter::faceFor(double points, bool bold) {
    const auto key = std::pair(points, bold);
    const auto found = m_faces.find(key);
    if (found != m_faces.end()) return found->second;
    return m_faces.emplace(key, Face{font(points, bold)}).first->second;
}

ReportTypesetter::Setting ReportTypesetter::setting(Face& face, const QString& text) {
    if (hasOnlyDigits(text)) return composed(face, text);
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

/// Sets a number digit by digit. Numbers hardly repeat, so this is much quicker than measuring each. It also
/// keeps the digits of a column below each other, which a font's kerning would spoil.
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

ReportTypesetter::Setting ReportTypesetter::fitting(Face& face, const ReportLook& look, const QString& text,
                                                    double width) {
    Setting whole = setting(face, text);
    if (whole.width <= width) return whole;
    if (!isNumber(text)) return setting(face, face.metrics.elidedText(text, Qt::ElideRight, width));
    constexpr double step = 0.5;
    for (double points = look.points - step; points > 0 && whole.width > width; points -= step)
        whole = setting(faceFor(points, look.bold), text);
    return whole;
}

void ReportTypesetter::set(const QRectF& place, const QString& text, const ReportLook& look) {
    if (text.isEmpty()) return;
    const bool grows = look.leastPoints > 0;
    if (!look.wrapped && !grows) {
        setLine(place, onOneLine(text), look);
        return;
    }
    const Face& face = faceFor(look.points, look.bold);
    const double height = face.metrics.lineSpacing();
    const int most = std::max(1, static_cast<int>(place.height() / height));
    const QStringList parts = lines(text, face.font, place.width(), most);
    QRectF line(place.topLeft(), QSizeF(place.width(), height));
    // A growing label is centred in its height beside its caption; a title begins at the top.
    if (grows) line.translate(0, (place.height() - height * double(parts.size())) / 2);
    for (const QString& part : parts) {
        setLine(line, onOneLine(part), look);
        line.translate(0, height);
    }
}

void ReportTypesetter::setLine(const QRectF& place, const QString& text, const ReportLook& look) {
    Face& face = faceFor(look.points, look.bold);
    const Setting fit = fitting(face, look, text, place.width());
    const double letters = face.metrics.ascent() + face.metrics.descent();
    const QPointF start(leftEnd(place, fit.width, look.align),
                        place.top() + (place.height() - letters) / 2 + face.metrics.ascent());
    Batch* batch = nullptr;
    for (const Letter& letter : fit.letters) {
        if (!batch || batch->font != letter.font) batch = &batchFor(letter.font, look.ink);
        batch->glyphs.append(letter.glyph);
        // Whole units, finer than the eye sees: fractions would take half of a PDF's size and time.
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
    const auto found = std::ranges::find_if(
        m_batches, [=](const Batch& batch) { return batch.ink == ink && batch.font == font; });
    return found != m_batches.end() ? *found : m_batches.emplace_back(Batch{font, ink});
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
