#include "Heading.h"
#include "NavigationBar.h"

#include <QVBoxLayout>
#include <algorithm>

namespace {
constexpr int headingGap = 4;
constexpr int itemGap = 2;
} // namespace

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
    // It may be the item whose click is being handled, so it goes later; nobody shall find it until then.
    gone->setObjectName(QString());
    Q_EMIT itemsChanged();
    gone->hide();
    gone->deleteLater();
}

void BarGroup::setItemSpacing(int percent) {
    m_spacing = percent;
    for (BarItem* item : m_items) item->setSpacing(percent);
}
