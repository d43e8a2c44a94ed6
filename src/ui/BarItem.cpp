#include "LineBreaks.h"
#include "NavigationBar.h"
#include "Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace {

constexpr int iconEdge = 32;
constexpr int padding = 8;
constexpr int stripe = 3;
constexpr int corner = 6;

QString shownText(const QString& caption) { return withPlainBreaks(caption).replace(u"&&"_qs, u"&"_qs); }

} // namespace

BarItem::BarItem(const QString& key, const QString& caption, const QString& icon, QWidget* parent)
    : QToolButton(parent)
    , m_key(key)
    , m_caption(shownText(caption)) {
    setObjectName(key);
    // The button itself would read a single ampersand as a mnemonic.
    setText(QString(m_caption).replace(u'&', u"&&"_qs));
    setAccessibleName(QString(m_caption).replace(u'\n', u' '));
    setIcon(Theme::icon(icon));
    setIconSize({iconEdge, iconEdge});
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void BarItem::setSpacing(int percent) {
    m_spacing = percent;
    updateGeometry();
}

QSize BarItem::sizeHint() const {
    const QSize words = fontMetrics().size(0, m_caption);
    const int natural = std::max(iconEdge, 2 * fontMetrics().height()) + 2 * padding;
    const int least = std::max(iconEdge, words.height()) + padding / 2;
    return {padding + iconEdge + padding + words.width() + padding,
            std::max(least, natural * m_spacing / 100)};
}

void BarItem::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF face = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::barItemGround(isChecked(), underMouse() && isEnabled(), isDown()));
    painter.drawRoundedRect(face, corner, corner);
    if (isChecked()) {
        painter.setBrush(Theme::accent());
        painter.drawRoundedRect(
            QRectF(face.left() + 1, face.top() + corner, stripe, face.height() - 2 * corner), stripe / 2.0,
            stripe / 2.0);
    }
    if (hasFocus()) {
        painter.setPen(QPen(Theme::accent(), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(face, corner, corner);
    }
    const QRect picture(padding, (height() - iconEdge) / 2, iconEdge, iconEdge);
    icon().paint(&painter, picture, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect().adjusted(padding + iconEdge + padding, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     m_caption);
}

void BarItem::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
        Q_EMIT neighbourWanted(-1);
        break;
    case Qt::Key_Down:
        Q_EMIT neighbourWanted(1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    default:
        QToolButton::keyPressEvent(event);
    }
}
