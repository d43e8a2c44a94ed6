#include "HandbuchSeite.h"

#include "Theme.h"

#include <QImage>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

constexpr int paperMargin = 24;

/// The program's style for the pages, in either mode. The style file beside the pages is for web browsers.
QString houseStyle() {
    return u"h1, h2, th { color: %1; } a { color: %2; } p, li, td { line-height: 125%; }"
           "p.bild { line-height: 100%; margin-top: 14px; margin-bottom: 14px; }"
           "li { margin-bottom: 6px; } td, th { padding: 4px 12px 4px 0; } th { text-align: left; }"
           "h2 { margin-top: 22px; } table { margin-top: 8px; }"_s.arg(Theme::headingInk().name(),
                                                                       Theme::accent().name());
}

} // namespace

HandbuchSeite::HandbuchSeite(QWidget* parent)
    : QTextBrowser(parent) {
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    // Pictures follow the width: a bar that comes and goes with their height would go on doing so for ever.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QFont reading = font();
    reading.setPointSizeF(reading.pointSizeF() * 1.15);
    setFont(reading);
    document()->setDocumentMargin(paperMargin);
    document()->setDefaultStyleSheet(houseStyle());
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        if (link.isLocalFile()) Q_EMIT seiteGewuenscht(link);
    });
}

QVariant HandbuchSeite::loadResource(int type, const QUrl& name) {
    const QUrl file = source().resolved(name);
    if (!file.isLocalFile() || type == QTextDocument::StyleSheetResource) return QByteArray();
    return type == QTextDocument::ImageResource ? fitting(QImage(file.toLocalFile()))
                                                : QTextBrowser::loadResource(type, name);
}

QImage HandbuchSeite::fitting(const QImage& picture) {
    m_setWidth = viewport()->width();
    const int room = (m_setWidth - 2 * paperMargin) * 2 / 3;
    if (picture.width() <= room) return picture;
    QImage smaller = picture.scaledToWidth(qRound(room * devicePixelRatio()), Qt::SmoothTransformation);
    smaller.setDevicePixelRatio(devicePixelRatio());
    return smaller;
}

// Lays the page out again with pictures of another width and returns to the same line.
void HandbuchSeite::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    if (!isVisible() || !m_setWidth || m_setWidth == viewport()->width()) return;
    const int line = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(line);
}
