#include "NavigationBar.h"

#include "HousePaint.h"
#include "Theme.h"

#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

namespace {
constexpr int margin = 8;
constexpr int groupGap = 8;
constexpr int leastHeight = 160;
} // namespace

NavigationBar::NavigationBar(const QString& name, QWidget* parent)
    : QWidget(parent)
    , m_scroll(new QScrollArea(this))
    , m_face(new QWidget)
    , m_column(new QVBoxLayout(m_face)) {
    setObjectName(name);
    setAccessibleName(tr("Navigation"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    m_face->setObjectName(u"barFace"_qs);
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

QVector<BarItem*> NavigationBar::allItems() const {
    QVector<BarItem*> items;
    for (const BarGroup* group : m_groups) items += group->items();
    return items;
}

BarItem* NavigationBar::firstItem() const {
    const QVector<BarItem*> own =
        m_groups.value(m_currentGroup) ? m_groups[m_currentGroup]->items() : QVector<BarItem*>();
    const QVector<BarItem*> items = own.isEmpty() ? allItems() : own;
    return items.isEmpty() ? nullptr : items.first();
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
    for (BarItem* each : allItems()) each->setChecked(each == item);
    renewTabStop();
}

void NavigationBar::renewTabStop() {
    const QVector<BarItem*> items = allItems();
    setTabStop(items.contains(m_current) ? m_current.data() : firstItem());
    updateGeometry();
}

void NavigationBar::setTabStop(BarItem* item) {
    for (BarItem* each : allItems()) each->setFocusPolicy(each == item ? Qt::TabFocus : Qt::NoFocus);
    setFocusProxy(item);
}

void NavigationBar::goToNeighbour(BarItem* from, int step) {
    const QVector<BarItem*> items = allItems();
    BarItem* next = items.value(items.indexOf(from) + step);
    if (!next) return;
    setTabStop(next);
    next->setFocus(Qt::TabFocusReason);
    m_scroll->ensureWidgetVisible(next);
}

// The scroll bar's room is kept free, so that nothing jumps when it comes.
QSize NavigationBar::sizeHint() const {
    return {m_face->minimumSizeHint().width() + m_scroll->verticalScrollBar()->sizeHint().width(),
            m_face->sizeHint().height()};
}

QSize NavigationBar::minimumSizeHint() const { return {sizeHint().width(), leastHeight}; }

void NavigationBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    HousePaint::bar(rect(), Theme::barGround(), Qt::RightEdge, &painter);
}
