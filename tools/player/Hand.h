#pragma once

#include <QString>
#include <Qt>

class QPoint;
class QWidget;

/// The user's hand: mouse and keyboard, through the window system's way into the program, so that grabs,
/// popups, modal screens and mnemonics work as they do for a user.
namespace Hand {

/// Lets the program catch up with all that is on its way: painting, focus, queued calls.
void settle();
/// Does what a window manager would: one of the windows that can be used is the active one.
void activateWindow();
/// As a click into it does.
void activateWindowOf(QWidget* widget);
/// Behind a modal window, and none of its own.
bool isLocked(const QWidget* window);
/// The window in front that a user can use; null if there is none.
QWidget* windowInFront();

// The place is in the widget's own coordinates.
void move(QWidget* widget, QPoint place);
void click(QWidget* widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
void doubleClick(QWidget* widget, QPoint place);
/// A modal screen may open while a button is down; a user lets it go then.
void releaseButton();

void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Types a text, a line break of any kind as Enter and a tabulator as Tab.
void type(const QString& text);
/// A key by its name in the toolkit, with modifiers before it ("F3", "Ctrl+V"); false if there is none such.
bool namedKey(const QString& name);

} // namespace Hand
