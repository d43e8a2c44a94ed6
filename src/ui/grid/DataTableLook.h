#pragma once

#include <QColor>
#include <QPalette>

class QPainter;
class QRect;
class QString;

/// The colours of the grid, mixed from the palette and the theme's blue, so that they suit both modes.
struct DataTableLook {
    static constexpr int gutterWidth = 22;
    static constexpr int padding = 6;

    explicit DataTableLook(const QPalette& palette);

    /// The ground of a row that has just been saved.
    QColor marked(const QColor& back) const;

    QColor even;
    QColor odd;
    QColor text;
    QColor rule; ///< the thin line under a row
    QColor gutter;
    QColor gutterEdge;
    QColor mark; ///< the marks in the gutter: current row, expanded or collapsed
    QColor band; ///< a category
    QColor bandText;
    QColor head;
    QColor headText;
    QColor headEdge;
    QColor childText;
    QColor childRule;
    QColor focus;
};

/// Drawing routines common to rows and header.
namespace DataTableShapes {

void text(QPainter& painter, const QRect& cell, Qt::Alignment alignment, const QString& text);
/// The mark of the current row: a small filled triangle pointing right.
void currentMark(QPainter& painter, const QRect& gutter, const QColor& colour);
/// An angle, pointing right if closed and down if open.
void expandMark(QPainter& painter, const QRect& gutter, bool open, const QColor& colour);
/// In the middle of the cell.
void tick(QPainter& painter, const QRect& cell, const QColor& colour);
/// A small filled triangle beside a head: pointing up where the least row stands first.
void sortMark(QPainter& painter, const QRect& place, Qt::SortOrder order, const QColor& colour);
/// The picture of this file, in the middle of the cell, at most as large as it; nothing if there is none.
void picture(QPainter& painter, const QRect& cell, const QString& path);
void frame(QPainter& painter, const QRect& row, const QColor& colour);

} // namespace DataTableShapes
