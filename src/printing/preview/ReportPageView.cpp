#include "ReportPageView.h"

#include "Clock.h"
#include "ReportPaper.h"
#include "Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int rim = 20;
constexpr int shadow = 6;
constexpr int lineStep = 40;

QColor tableColour() {
    return Theme::mode() == Theme::Mode::Dark ? QColor(0x12, 0x15, 0x1a) : QColor(0xcd, 0xd4, 0xdf);
}

void paintSheet(QPainter& painter, const QRectF& sheet) {
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(0, 0, 0, Theme::mode() == Theme::Mode::Dark ? 40 : 14));
    for (int spread = shadow; spread > 0; --spread)
        painter.drawRoundedRect(sheet.adjusted(-spread, 2 - spread, spread, 2 + spread), spread, spread);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(sheet, Qt::white);
}

} // namespace

ReportPageView::ReportPageView(QWidget* parent)
    : QAbstractScrollArea(parent) {
    setObjectName(u"pageView"_s);
    setAccessibleName(u"Seite des Berichts"_s);
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    horizontalScrollBar()->setSingleStep(lineStep);
    verticalScrollBar()->setSingleStep(lineStep);
}

void ReportPageView::setDocument(std::shared_ptr<const ReportDocument> document) {
    m_document = std::move(document);
    m_painter = std::make_unique<ReportPainter>(*m_document, today());
    horizontalScrollBar()->setValue(0);
    m_page = -1; // none of the new document yet
    setPage(0);
}

void ReportPageView::setPage(int page) {
    const int wanted = std::clamp(page, 0, m_document->pageCount() - 1);
    m_wheel = 0;
    if (wanted != m_page) {
        m_page = wanted;
        verticalScrollBar()->setValue(0);
        viewport()->update();
    }
    Q_EMIT pageChanged();
}

void ReportPageView::moveOn(int direction) {
    QScrollBar* bar = verticalScrollBar();
    if (isAtEnd(direction))
        turnPage(direction);
    else
        bar->setValue(bar->value() + direction * (bar->pageStep() - lineStep));
}

bool ReportPageView::isAtEnd(int direction) const {
    const QScrollBar* bar = verticalScrollBar();
    return bar->value() == (direction > 0 ? bar->maximum() : bar->minimum());
}

void ReportPageView::turnPage(int direction) {
    const int before = m_page;
    setPage(m_page + direction);
    if (direction < 0 && m_page != before) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void ReportPageView::setZoom(int zoom) {
    m_zoom = zoom;
    renewScrollBars();
    viewport()->update();
}

double ReportPageView::shownPercent() const { return 100 * pixelsPerTenth() / trueScale(); }

double ReportPageView::trueScale() const { return logicalDpiX() / ReportPaper::tenthsPerInch; }

// PageWidth leaves space for the scroll bar even while there is none. Otherwise the page's width would decide
// on the scroll bar, and the scroll bar on the width, without end.
double ReportPageView::pixelsPerTenth() const {
    const QSize room = maximumViewportSize() - QSize(2 * rim, 2 * rim);
    const int bar = verticalScrollBar()->sizeHint().width();
    const auto scale = [](int pixels, int tenths) { return std::max(0.1, double(pixels) / tenths); };
    if (m_zoom == PageWidth) return scale(room.width() - bar, ReportPaper::width);
    if (m_zoom == WholePage)
        return std::min(scale(room.width(), ReportPaper::width), scale(room.height(), ReportPaper::height));
    return trueScale() * m_zoom / 100;
}

QSizeF ReportPageView::sheetSize() const {
    return QSizeF(ReportPaper::width, ReportPaper::height) * pixelsPerTenth();
}

QPointF ReportPageView::sheetCorner() const {
    const QSizeF space = (QSizeF(viewport()->size()) - sheetSize()) / 2;
    return {std::max<double>(rim, std::floor(space.width())) - horizontalScrollBar()->value(),
            std::max<double>(rim, std::floor(space.height())) - verticalScrollBar()->value()};
}

void ReportPageView::renewScrollBars() {
    const auto renew = [](QScrollBar* bar, double sheet, int room, int view) {
        const int whole = static_cast<int>(std::ceil(sheet)) + 2 * rim;
        bar->setPageStep(view);
        // A scroll bar appears only if the sheet does not fit without any bar.
        bar->setRange(0, whole > room ? whole - view : 0);
    };
    const QSizeF sheet = sheetSize();
    const QSize room = maximumViewportSize();
    const QSize view = viewport()->size();
    renew(horizontalScrollBar(), sheet.width(), room.width(), view.width());
    renew(verticalScrollBar(), sheet.height(), room.height(), view.height());
}

void ReportPageView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), tableColour());
    const QRectF sheet(sheetCorner(), sheetSize());
    paintSheet(painter, sheet);
    painter.setClipRect(sheet);
    painter.translate(sheet.topLeft());
    painter.scale(pixelsPerTenth(), pixelsPerTenth());
    m_painter->paint(painter, m_page);
}

void ReportPageView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    renewScrollBars();
}

void ReportPageView::scrollContentsBy(int /*dx*/, int /*dy*/) { viewport()->update(); }

void ReportPageView::keyPressEvent(QKeyEvent* event) {
    if (!obey(event->key())) QAbstractScrollArea::keyPressEvent(event);
}

bool ReportPageView::obey(int key) {
    switch (key) {
    case Qt::Key_PageDown:
    case Qt::Key_PageUp:
        moveOn(key == Qt::Key_PageDown ? 1 : -1);
        return true;
    case Qt::Key_Home:
    case Qt::Key_End:
        setPage(key == Qt::Key_Home ? 0 : m_document->pageCount() - 1);
        return true;
    case Qt::Key_Plus:
    case Qt::Key_Minus:
        Q_EMIT zoomStepWanted(key == Qt::Key_Plus ? 1 : -1);
        return true;
    default:
        return false;
    }
}

void ReportPageView::wheelEvent(QWheelEvent* event) {
    const int angle = event->angleDelta().y();
    const bool zooms = event->modifiers().testFlag(Qt::ControlModifier);
    if (zooms && angle != 0) Q_EMIT zoomStepWanted(angle > 0 ? 1 : -1);
    if (zooms || turnByWheel(angle))
        event->accept();
    else
        QAbstractScrollArea::wheelEvent(event);
}

// At the end of a page the wheel turns to the next one. True if the wheel was moved there.
bool ReportPageView::turnByWheel(int angle) {
    const int direction = angle < 0 ? 1 : -1;
    if (angle == 0 || !isAtEnd(direction)) {
        m_wheel = 0;
        return false;
    }
    m_wheel += angle;
    if (std::abs(m_wheel) < QWheelEvent::DefaultDeltasPerStep) return true;
    turnPage(direction);
    return true;
}
