#include "DataTableHeader.h"

#include "DataTableLook.h"
#include "DataTableModel.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace {
constexpr int sortMarkWidth = 14;
constexpr int air = 5; ///< above and below a head

QFont smaller(QFont font) {
    font.setPointSizeF(font.pointSizeF() * 0.85);
    return font;
}

} // namespace

DataTableHeader::DataTableHeader(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent) {
    setMinimumSectionSize(16);
    setHighlightSections(false);
    setSectionsClickable(false);
}

QString DataTableHeader::linesOf(int section) const {
    return model()->headerData(section, Qt::Horizontal, DataTableModel::linesRole).toString();
}

QSize DataTableHeader::sizeHint() const {
    int height = fontMetrics().height();
    for (int section = 0; section < count(); ++section)
        if (const QString lines = linesOf(section); !lines.isEmpty())
            height = std::max(height, QFontMetrics(smaller(font())).size(0, lines).height());
    return {QHeaderView::sizeHint().width(), height + 2 * air};
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
    if (const QString lines = linesOf(section); !lines.isEmpty()) {
        painter->setFont(smaller(font()));
        painter->setPen(look.headText);
        painter->drawText(rect, Qt::AlignCenter, lines);
        return;
    }
    QRect words = rect;
    if (isSortIndicatorShown() && sortIndicatorSection() == section) {
        words.setRight(rect.right() - sortMarkWidth);
        const QRect place(words.right(), words.top(), sortMarkWidth, words.height());
        DataTableShapes::sortMark(*painter, place, sortIndicatorOrder(), look.headText);
    }
    painter->setPen(look.headText);
    DataTableShapes::text(*painter, words, alignment.value<Qt::Alignment>(), head);
}
