#include "DataTableHeader.h"

#include "DataTableLook.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace {
constexpr int sortMarkWidth = 14;
}

DataTableHeader::DataTableHeader(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent) {
    setMinimumSectionSize(16);
    setHighlightSections(false);
    setSectionsClickable(false);
}

QSize DataTableHeader::sizeHint() const {
    return {QHeaderView::sizeHint().width(), fontMetrics().height() + 10};
}

// The corner is no head: nothing is sorted by it.
void DataTableHeader::mousePressEvent(QMouseEvent* event) {
    if (event->position().x() >= DataTableLook::gutterWidth) QHeaderView::mousePressEvent(event);
}

void DataTableHeader::paintEvent(QPaintEvent* event) {
    const DataTableLook look(palette());
    QPainter painter(viewport());
    painter.fillRect(event->rect(), look.head);
    painter.end();
    QHeaderView::paintEvent(event);
    painter.begin(viewport());
    painter.fillRect(QRect(0, 0, DataTableLook::gutterWidth, height()), look.head);
}

void DataTableHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
    const DataTableLook look(palette());
    painter->fillRect(rect, look.head);
    painter->fillRect(QRect(rect.right(), rect.top() + 5, 1, rect.height() - 10), look.headEdge);
    const QVariant alignment = model()->headerData(section, Qt::Horizontal, Qt::TextAlignmentRole);
    const QString head = model()->headerData(section, Qt::Horizontal).toString();
    QRect words = rect;
    if (isSortIndicatorShown() && sortIndicatorSection() == section) {
        words.setRight(rect.right() - sortMarkWidth);
        const QRect place(words.right(), rect.top(), sortMarkWidth, rect.height());
        DataTableShapes::sortMark(*painter, place, sortIndicatorOrder(), look.headText);
    }
    painter->setPen(look.headText);
    DataTableShapes::text(*painter, words, alignment.value<Qt::Alignment>(), head);
}
