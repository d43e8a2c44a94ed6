#include "DataTable.h"

#include "DataTableModel.h"
#include "DataTableShapes.h"
#include "Theme.h"

#include <QHeaderView>
#include <QPainter>
#include <QPixmapCache>

using namespace Qt::StringLiterals;
using DataTableShapes::gutterWidth;

// The row header, then either the cells or, for a category, its caption over the whole width.

namespace {

bool isDark() { return Theme::mode() == Theme::Mode::Dark; }

struct Face {
    QColor back;
    QColor text;
    QColor rule; ///< the thin line under a row
};

/// The colours of the grid, mixed from the palette and the theme's blue, so that they suit both modes.
struct Colours {
    explicit Colours(const QPalette& palette)
        : base(palette.color(QPalette::Base))
        , ink(palette.color(QPalette::Text)) {}

    Face faceOf(const DataTableModel& model, const QModelIndex& row) const {
        if (model.isCategory(row) && isDark())
            return {Theme::mixed(base, deep, 0.62), Theme::mixed(blue, Qt::white, 0.4), gutterEdge};
        if (model.isCategory(row))
            return {Theme::mixed(base, blue, 0.42), Theme::mixed(deep, Qt::black, 0.35), gutterEdge};
        if (model.isTwoLevel()) return {model.childColour(row), Qt::black, Theme::mixed(blue, deep, 0.30)};
        return {row.row() % 2 ? odd : base, ink, Theme::mixed(base, ink, isDark() ? 0.14 : 0.11)};
    }

    QColor base;
    QColor ink;
    QColor blue = Theme::blue();
    QColor deep = Theme::darkBlue();
    QColor odd = isDark() ? Theme::mixed(base, deep, 0.16) : Theme::mixed(base, blue, 0.12);
    QColor gutter = isDark() ? Theme::mixed(base, deep, 0.40) : Theme::mixed(base, blue, 0.30);
    QColor gutterEdge = isDark() ? Theme::mixed(base, blue, 0.26) : Theme::mixed(base, blue, 0.80);
    QColor mark = isDark() ? blue : deep; ///< in the gutter: current row, expanded or collapsed
};

/// The ground of a row that has just been saved. Child tables have a light ground on a dark desktop, too,
/// where the accent would be lost on it.
QColor marked(const QColor& back) {
    constexpr int middle = 128;
    const bool lost = back.lightness() > middle && isDark();
    return Theme::mixed(back, lost ? Theme::darkBlue() : Theme::accent(), 0.3);
}

/// Two strokes around the middle of the place, turned clockwise by so many degrees.
void drawAngle(QPainter& painter, const QRect& place, const QPen& pen, const QPointF (&points)[3],
               int turn = 0) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(pen.brush(), pen.widthF(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(QRectF(place).center());
    painter.rotate(turn);
    painter.drawPolyline(points, 3);
    painter.restore();
}

QPixmap loadedPicture(const QString& path, QSize room, double ratio) {
    const QString key = u"%1|%2x%3@%4"_s.arg(path).arg(room.width()).arg(room.height()).arg(ratio);
    QPixmap picture;
    if (QPixmapCache::find(key, &picture)) return picture;
    // Paths in the program use either slash.
    picture = QPixmap(QString(path).replace(u'\\', u'/'));
    if (picture.isNull()) return picture;
    const QSize fitting = picture.size().scaled(room, Qt::KeepAspectRatio).boundedTo(picture.size());
    picture = picture.scaled(fitting * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    QPixmapCache::insert(key, picture);
    return picture;
}

/// The picture of this file, in the middle of the cell, at most as large as it; nothing if there is none.
void drawPicture(QPainter& painter, const QRect& cell, const QString& path) {
    const QRect room = cell.adjusted(0, 2, 0, -2);
    if (path.trimmed().isEmpty() || room.isEmpty()) return;
    const QPixmap picture = loadedPicture(path, room.size(), painter.device()->devicePixelRatioF());
    QRectF place(QPointF(0, 0), picture.deviceIndependentSize());
    place.moveCenter(QRectF(room).center());
    painter.drawPixmap(place.toRect(), picture);
}

void drawCell(QPainter& painter, const QRect& cell, const GridColumn& column, const DataTableRows& rows,
              const QModelIndex& index) {
    if (column.tick) {
        if (rows.value(index.row(), index.column()) == Value(true))
            drawAngle(painter, cell, {painter.pen().color(), 2}, {{-4, 0}, {-1, 3}, {5, -4}});
        return;
    }
    const QString text = rows.text(index.row(), index.column());
    if (column.picture)
        drawPicture(painter, cell, text);
    else
        DataTableShapes::text(painter, cell, column.numeric ? Qt::AlignRight : Qt::AlignLeft, text);
}

void drawCells(QPainter& painter, const QRect& row, const DataTableModel& model, const QHeaderView& header,
               const QModelIndex& index) {
    const DataTableRows& rows = model.rows(model.tableOf(index));
    const auto& columns = model.shownColumns();
    for (int column = 0; column < columns.size(); ++column) {
        const QRect cell(header.sectionViewportPosition(column), row.top(), header.sectionSize(column),
                         row.height() - 1);
        if (!cell.intersected(row).isEmpty())
            drawCell(painter, cell, columns[column], rows, index.siblingAtColumn(column));
    }
}

void drawCaption(QPainter& painter, const QRect& row, const QString& text) {
    QFont bold = painter.font();
    bold.setBold(true);
    painter.setFont(bold);
    DataTableShapes::text(painter, row.adjusted(gutterWidth, 0, 0, -1), Qt::AlignLeft, text);
}

/// At the viewport's edge, not at the section's place: the row header does not scroll with the columns.
QRect drawGutter(QPainter& painter, const QRect& rows, const Colours& colours) {
    const QRect gutter(0, rows.top(), gutterWidth, rows.height());
    painter.fillRect(gutter, colours.gutter);
    painter.fillRect(QRect(gutter.right(), gutter.top(), 1, gutter.height()), colours.gutterEdge);
    return gutter;
}

} // namespace

void DataTable::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    const Colours colours(palette());
    const QRect row = option.rect;
    const bool isCategory = m_model->isCategory(index);
    const bool isCurrent = currentIndex().siblingAtColumn(index.column()) == index;
    Face face = colours.faceOf(*m_model, index);
    if (selectionModel()->isSelected(index)) {
        const auto group = hasFocus() ? QPalette::Active : QPalette::Inactive;
        const bool given = m_selectionStyle.back.isValid();
        face.back = given ? m_selectionStyle.back : palette().color(group, QPalette::Highlight);
        face.text = given ? m_selectionStyle.fore : palette().color(group, QPalette::HighlightedText);
    } else if (const QModelIndex saved = m_marked; saved.siblingAtColumn(index.column()) == index) {
        face.back = marked(face.back);
    }
    painter->save();
    painter->fillRect(row, face.back);
    painter->fillRect(QRect(row.left(), row.bottom(), row.width(), 1), face.rule);
    painter->setPen(face.text);
    if (isCategory)
        drawCaption(*painter, row, index.siblingAtColumn(0).data().toString());
    else
        drawCells(*painter, row, *m_model, *header(), index);
    const QRect gutter = drawGutter(*painter, row, colours);
    painter->fillRect(QRect(gutter.left(), gutter.bottom(), gutter.width(), 1), colours.gutterEdge);
    if (isCategory) {
        QColor mark = colours.mark;
        // Paler for a category without a child table, which can be expanded all the same.
        if (!m_model->hasChild(index.row())) mark.setAlphaF(0.4F);
        drawAngle(*painter, gutter, {mark, 1.8}, {{-2, -4}, {2, 0}, {-2, 4}}, isExpanded(index) ? 90 : 0);
    } else if (isCurrent) {
        DataTableShapes::triangle(*painter, gutter, 0, colours.mark);
    }
    if (isCurrent && hasFocus()) {
        painter->setPen(QPen(Theme::accent(), 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter->drawRect(QRectF(row).adjusted(gutterWidth + 1, 1, -1, -1));
    }
    painter->restore();
}

void DataTable::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    QPainter painter(viewport());
    drawGutter(painter, spaceBelowRows(), Colours(palette()));
    if (m_model->rowCount() > 0) return;
    constexpr int margin = 16;
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(gutterWidth + margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_emptyHint);
}
