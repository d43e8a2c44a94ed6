#include "NavigationBar.h"

#include "Layout.h"
#include "LineBreaks.h"
#include "Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 8;
constexpr int groupGap = 8;
constexpr int leastHeight = 160;
constexpr int headingGap = 4;
constexpr int itemGap = 2;
/// The height of an item in per cent of the natural one, as far as its text lets it.
constexpr int itemSpacing = 80;
constexpr int iconEdge = 32;
constexpr int padding = 8;
constexpr int stripe = 3;
constexpr int corner = 6;

} // namespace

BarItem::BarItem(const QString& key, const QString& caption, const QString& icon, QWidget* parent)
    : QToolButton(parent)
    , m_caption(withPlainBreaks(caption).replace(u"&&"_s, u"&"_s)) {
    setObjectName(key);
    setAccessibleName(QString(m_caption).replace(u'\n', u' '));
    setIcon(Theme::icon(icon));
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize BarItem::sizeHint() const {
    const QSize words = fontMetrics().size(0, m_caption);
    const int natural = std::max(iconEdge, 2 * fontMetrics().height()) + 2 * padding;
    const int least = std::max(iconEdge, words.height()) + padding / 2;
    return {padding + iconEdge + padding + words.width() + padding,
            std::max(least, natural * itemSpacing / 100)};
}

void BarItem::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF face = QRectF(rect()).adjusted(1, 1, -1, -1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::barItemGround(isChecked(), underMouse(), isDown()));
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
    icon().paint(&painter, padding, (height() - iconEdge) / 2, iconEdge, iconEdge);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect().adjusted(padding + iconEdge + padding, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     m_caption);
}

NavigationBar::NavigationBar(QStringView name, QWidget* parent)
    : QWidget(parent)
    , m_scroll(new QScrollArea(this))
    , m_face(new QWidget) {
    setObjectName(name);
    setAccessibleName(tr("Navigation"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    QVBoxLayout* column = Layout::stack(m_face, {});
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(groupGap);
    column->setAlignment(Qt::AlignTop);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setWidgetResizable(true);
    m_scroll->setWidget(m_face);
    m_face->setAutoFillBackground(false);
    m_scroll->viewport()->setAutoFillBackground(false);
    Layout::stack(this, {m_scroll});
}

QWidget* NavigationBar::group(const QString& caption) {
    const auto found = std::ranges::find(m_groups, caption, &QWidget::accessibleName);
    if (found != m_groups.end()) return *found;
    auto* made = new QWidget(m_face);
    made->setAccessibleName(caption);
    auto* heading = new QLabel(caption, made);
    heading->setForegroundRole(Theme::headingRole);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->setContentsMargins(headingGap, headingGap, headingGap, headingGap);
    Layout::stack(made, {heading})->setSpacing(itemGap);
    m_groups.append(made);
    m_face->layout()->addWidget(made);
    return made;
}

void NavigationBar::addItem(const QString& group, const QString& key, const QString& caption,
                            const QString& icon) {
    QWidget* place = this->group(group);
    auto* item = new BarItem(key, caption, icon, place);
    item->installEventFilter(this);
    connect(item, &BarItem::clicked, this, [this, key] { Q_EMIT itemClicked(key); });
    place->layout()->addWidget(item);
    renewTabStop();
}

void NavigationBar::removeItem(const QString& key) {
    BarItem* gone = item(key);
    if (!gone) return;
    gone->hide();
    // This item's click may be the one being handled, so delete it later. Off the bar, no search finds it.
    gone->setParent(nullptr);
    gone->deleteLater();
    renewTabStop();
}

BarItem* NavigationBar::item(const QString& key) const {
    return key.isEmpty() ? nullptr : m_face->findChild<BarItem*>(key);
}

QVector<BarItem*> NavigationBar::items() const { return m_face->findChildren<BarItem*>(); }

BarItem* NavigationBar::firstItem() const {
    const QWidget* group = m_groups.value(m_currentGroup);
    auto* own = group ? group->findChild<BarItem*>() : nullptr;
    return own ? own : m_face->findChild<BarItem*>();
}

void NavigationBar::setCurrentGroup(int index) {
    m_currentGroup = index;
    renewTabStop();
}

void NavigationBar::setCurrentItem(const BarItem* item) {
    for (BarItem* each : items()) each->setChecked(each == item);
    renewTabStop();
}

void NavigationBar::renewTabStop() {
    const QVector<BarItem*> all = items();
    const auto current = std::ranges::find_if(all, &BarItem::isChecked);
    setTabStop(current == all.end() ? firstItem() : *current);
    int place = 0;
    for (BarItem* each : all) each->setToolTip(u"Strg+%1"_s.arg(++place));
    updateGeometry();
}

void NavigationBar::setTabStop(BarItem* item) {
    for (BarItem* each : items()) each->setFocusPolicy(each == item ? Qt::TabFocus : Qt::NoFocus);
    setFocusProxy(item);
}

// The arrow keys of each item. By itself an item would follow the tab order, which leads out of the bar.
bool NavigationBar::eventFilter(QObject* item, QEvent* event) {
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (key != Qt::Key_Up && key != Qt::Key_Down) return false;
    const QVector<BarItem*> all = items();
    BarItem* next = all.value(all.indexOf(item) + (key == Qt::Key_Down ? 1 : -1));
    if (!next) return true;
    setTabStop(next);
    next->setFocus(Qt::TabFocusReason);
    m_scroll->ensureWidgetVisible(next);
    return true;
}

// Leaves space for the scroll bar, so that nothing moves when it appears.
QSize NavigationBar::sizeHint() const {
    return {m_face->minimumSizeHint().width() + m_scroll->verticalScrollBar()->sizeHint().width(),
            m_face->sizeHint().height()};
}

QSize NavigationBar::minimumSizeHint() const { return {sizeHint().width(), leastHeight}; }

void NavigationBar::paintEvent(QPaintEvent* /*event*/) {
    Theme::paintBar(this, Theme::barGround(), Qt::RightEdge);
}
