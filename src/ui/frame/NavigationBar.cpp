#include "NavigationBar.h"

#include "Heading.h"
#include "HousePaint.h"
#include "LineBreaks.h"
#include "Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 8;
constexpr int groupGap = 8;
constexpr int leastHeight = 160;
constexpr int headingGap = 4;
constexpr int itemGap = 2;
constexpr int iconEdge = 32;
constexpr int padding = 8;
constexpr int stripe = 3;
constexpr int corner = 6;

QString shownText(const QString& caption) { return withPlainBreaks(caption).replace(u"&&"_s, u"&"_s); }

} // namespace

BarItem::BarItem(const QString& key, const QString& caption, const QString& icon, QWidget* parent)
    : QToolButton(parent)
    , m_key(key)
    , m_caption(shownText(caption)) {
    setObjectName(key);
    // The button itself would read a single ampersand as a mnemonic.
    setText(QString(m_caption).replace(u'&', u"&&"_s));
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

BarGroup::BarGroup(const QString& caption, QWidget* parent)
    : QWidget(parent)
    , m_caption(caption)
    , m_column(new QVBoxLayout(this)) {
    setAccessibleName(caption);
    auto* heading = new HeadingText(caption, this);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->setContentsMargins(headingGap, headingGap, headingGap, headingGap);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(itemGap);
    m_column->addWidget(heading);
}

BarItem* BarGroup::addItem(const QString& key, const QString& caption, const QString& icon) {
    auto* item = new BarItem(key, caption, icon, this);
    item->setSpacing(m_spacing);
    connect(item, &BarItem::clicked, this, [this, key] { Q_EMIT itemClicked(key); });
    connect(item, &BarItem::neighbourWanted, this,
            [this, item](int step) { Q_EMIT neighbourWanted(item, step); });
    m_items.append(item);
    m_column->addWidget(item);
    Q_EMIT itemsChanged();
    return item;
}

BarItem* BarGroup::item(const QString& key) const {
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [&](const BarItem* item) { return item->key() == key; });
    return found == m_items.end() ? nullptr : *found;
}

void BarGroup::removeItem(const QString& key) {
    BarItem* gone = item(key);
    if (!gone) return;
    m_items.removeOne(gone);
    m_column->removeWidget(gone);
    // This item's click may be the one being handled, so delete it later. Without a name no search finds it.
    gone->setObjectName(QString());
    Q_EMIT itemsChanged();
    gone->hide();
    gone->deleteLater();
}

void BarGroup::setItemSpacing(int percent) {
    m_spacing = percent;
    for (BarItem* item : m_items) item->setSpacing(percent);
}

NavigationBar::NavigationBar(const QString& name, QWidget* parent)
    : QWidget(parent)
    , m_scroll(new QScrollArea(this))
    , m_face(new QWidget)
    , m_column(new QVBoxLayout(m_face)) {
    setObjectName(name);
    setAccessibleName(tr("Navigation"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    m_face->setObjectName(u"barFace"_s);
    m_column->setContentsMargins(margin, margin, margin, margin);
    m_column->setSpacing(groupGap);
    m_column->addStretch(1);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setWidgetResizable(true);
    m_scroll->setWidget(m_face);
    m_face->setAutoFillBackground(false);
    m_scroll->viewport()->setAutoFillBackground(false);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(m_scroll);
}

BarGroup* NavigationBar::addGroup(const QString& caption) {
    auto* group = new BarGroup(caption, m_face);
    group->setItemSpacing(m_spacing);
    connect(group, &BarGroup::itemClicked, this, &NavigationBar::itemClicked);
    connect(group, &BarGroup::neighbourWanted, this, &NavigationBar::goToNeighbour);
    connect(group, &BarGroup::itemsChanged, this, &NavigationBar::renewTabStop);
    m_groups.append(group);
    m_column->insertWidget(m_column->count() - 1, group);
    return group;
}

BarGroup* NavigationBar::group(const QString& caption) const {
    const auto found = std::find_if(m_groups.begin(), m_groups.end(),
                                    [&](const BarGroup* group) { return group->caption() == caption; });
    return found == m_groups.end() ? nullptr : *found;
}

BarItem* NavigationBar::item(const QString& key) const {
    for (const BarGroup* group : m_groups) {
        if (BarItem* found = group->item(key)) return found;
    }
    return nullptr;
}

QVector<BarItem*> NavigationBar::items() const {
    QVector<BarItem*> all;
    for (const BarGroup* group : m_groups) all += group->items();
    return all;
}

BarItem* NavigationBar::firstItem() const {
    const QVector<BarItem*> own =
        m_groups.value(m_currentGroup) ? m_groups[m_currentGroup]->items() : QVector<BarItem*>();
    const QVector<BarItem*> all = own.isEmpty() ? items() : own;
    return all.isEmpty() ? nullptr : all.first();
}

void NavigationBar::setCurrentGroup(int index) {
    m_currentGroup = index;
    renewTabStop();
}

void NavigationBar::setItemSpacing(int spacing) {
    m_spacing = spacing;
    for (BarGroup* group : m_groups) group->setItemSpacing(spacing);
}

void NavigationBar::setCurrentItem(BarItem* item) {
    m_current = item;
    for (BarItem* each : items()) each->setChecked(each == item);
    renewTabStop();
}

void NavigationBar::renewTabStop() {
    setTabStop(items().contains(m_current) ? m_current.data() : firstItem());
    int place = 0;
    for (BarItem* each : items()) each->setToolTip(u"Strg+%1"_s.arg(++place));
    updateGeometry();
}

void NavigationBar::setTabStop(BarItem* item) {
    for (BarItem* each : items()) each->setFocusPolicy(each == item ? Qt::TabFocus : Qt::NoFocus);
    setFocusProxy(item);
}

void NavigationBar::goToNeighbour(BarItem* from, int step) {
    const QVector<BarItem*> all = items();
    BarItem* next = all.value(all.indexOf(from) + step);
    if (!next) return;
    setTabStop(next);
    next->setFocus(Qt::TabFocusReason);
    m_scroll->ensureWidgetVisible(next);
}

// Leaves space for the scroll bar, so that nothing moves when it appears.
QSize NavigationBar::sizeHint() const {
    return {m_face->minimumSizeHint().width() + m_scroll->verticalScrollBar()->sizeHint().width(),
            m_face->sizeHint().height()};
}

QSize NavigationBar::minimumSizeHint() const { return {sizeHint().width(), leastHeight}; }

void NavigationBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    HousePaint::bar(rect(), Theme::barGround(), Qt::RightEdge, &painter);
}
