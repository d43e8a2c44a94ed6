#pragma once

#include <Qt>

class QColor;
class QPainter;
class QRect;
class QString;

/// Measures and drawing routines common to rows and header.
namespace DataTableShapes {

constexpr int gutterWidth = 22;
constexpr int padding = 6;

void text(QPainter& painter, const QRect& cell, Qt::Alignment side, const QString& text);
/// In the middle of the place. Points right, turned clockwise by so many degrees.
void triangle(QPainter& painter, const QRect& place, int turn, const QColor& colour);

} // namespace DataTableShapes
