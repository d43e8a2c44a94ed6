#pragma once

#include <QColor>
#include <QRectF>
#include <qnamespace.h>

class QPainter;
class QStyleOption;
class QStyleOptionTab;
class QWidget;

/// Draws the parts of the controls. Each function draws into the option's rectangle if it takes no place.
namespace HousePaint {

/// The ground and border of a text box, a combo box and their like; the border is the focus ring as well, or
/// tells that the text can't be right. What can't be written in has the ground of a value that only shows.
void field(const QStyleOption* option, QPainter* painter, bool faulty = false);
/// The border alone, around something that paints its own ground.
void fieldBorder(const QStyleOption* option, QPainter* painter);
/// Ground and border of a value that cannot be edited.
void sunkenPanel(const QStyleOption* option, QPainter* painter);
void pushButton(const QStyleOption* option, QPainter* painter, bool isDefault);
void toolButton(const QStyleOption* option, QPainter* painter);
void focusRing(const QStyleOption* option, QPainter* painter);
void checkBox(const QStyleOption* option, QPainter* painter);
void radioButton(const QStyleOption* option, QPainter* painter);
/// The ground of a toolbar, the status bar or the navigation bar, with a line along its edge `end`. Call in
/// its paintEvent().
void bar(QWidget* widget, const QColor& ground, Qt::Edge end);
void chevron(const QRectF& place, Qt::ArrowType direction, const QStyleOption* option, QPainter* painter);
void tab(const QStyleOptionTab* option, QPainter* painter);
void framePanel(const QRectF& place, QPainter* painter);
void progressGroove(const QStyleOption* option, QPainter* painter);
void progressContents(const QRectF& filled, const QStyleOption* option, QPainter* painter);
void scrollHandle(const QRectF& place, const QStyleOption* option, bool pressed, QPainter* painter);

} // namespace HousePaint
