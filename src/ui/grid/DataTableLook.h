#pragma once

#include <QColor>
#include <QPalette>

class QPainter;
class QRect;
class QString;

/// Colours and small shapes of the grid, mixed from the palette and the house's blue so that they fit a light
/// and a dark desktop.
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
    QColor mark; ///< what stands in the gutter: current row, expand mark
    QColor band; ///< a category
    QColor bandText;
    QColor head;
    QColor headText;
    QColor headEdge;
    QColor childText;
    QColor childRule;
    QColor focus;
};

/// The drawing that rows and header have in common.
namespace DataTableShapes {

void text(QPainter& painter, const QRect& cell, Qt::Alignment alignment, const QString& text);
/// A small filled triangle pointing right: the current row.
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
