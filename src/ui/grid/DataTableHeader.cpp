#include "DataTableHeader.h"

#include "DataTableModel.h"
#include "DataTableShapes.h"
#include "Theme.h"

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

DataTableHeader::DataTableHeader(const DataTableModel& model, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent)
    , m_model(model) {
    setMinimumSectionSize(16);
    setHighlightSections(false);
    setSectionsClickable(false);
}

QSize DataTableHeader::sizeHint() const {
    int height = fontMetrics().height();
    for (const GridColumn& column : m_model.shownColumns())
        if (!column.headLines.isEmpty())
            height = std::max(height, QFontMetrics(smaller(font())).size(0, column.headLines).height());
    return {QHeaderView::sizeHint().width(), height + 2 * air};
}

// The corner is no head: nothing is sorted by it.
void DataTableHeader::mousePressEvent(QMouseEvent* event) {
    if (event->position().x() >= DataTableShapes::gutterWidth) QHeaderView::mousePressEvent(event);
}

void DataTableHeader::paintEvent(QPaintEvent* event) {
    QPainter(viewport()).fillRect(event->rect(), Theme::darkBlue());
    QHeaderView::paintEvent(event);
    QPainter(viewport()).fillRect(QRect(0, 0, DataTableShapes::gutterWidth, height()), Theme::darkBlue());
}

void DataTableHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
    const QColor ground = Theme::darkBlue();
    painter->fillRect(rect, ground);
    painter->fillRect(QRect(rect.right(), rect.top() + 5, 1, rect.height() - 10),
                      Theme::mixed(ground, Qt::white, 0.25));
    if (section == m_model.gutterColumn()) return;
    const GridColumn& column = m_model.shownColumns()[section];
    painter->setPen(Qt::white);
    if (!column.headLines.isEmpty()) {
        painter->setFont(smaller(font()));
        painter->drawText(rect, Qt::AlignCenter, column.headLines);
        return;
    }
    QRect words = rect;
    if (isSortIndicatorShown() && sortIndicatorSection() == section) {
        words.setRight(rect.right() - sortMarkWidth);
        const QRect place(words.right(), words.top(), sortMarkWidth, words.height());
        const bool up = sortIndicatorOrder() == Qt::AscendingOrder;
        DataTableShapes::triangle(*painter, place, up ? -90 : 90, Qt::white);
    }
    DataTableShapes::text(*painter, words, column.numeric ? Qt::AlignRight : Qt::AlignLeft, column.head);
}
