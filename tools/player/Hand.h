#pragma once

#include <QString>
#include <Qt>

class QPoint;
class QWidget;

/// The mouse and keyboard of the user. Events enter the program where those of the window system do, so that
/// grabs, popups, modal screens and mnemonics work as they do for a user.
namespace Hand {

/// Lets the program handle all that is pending: painting, focus, queued calls.
void settle();
/// Activates the window in front, as a window manager would.
void activateWindow();
/// Activates the widget's window, as a click into it does.
void activateWindowOf(QWidget* widget);
/// True if a modal window is open and the window does not belong to it.
bool isLocked(const QWidget* window);
/// The window in front that a user can use; null if there is none.
QWidget* windowInFront();

// The place is in the widget's own coordinates.
void move(QWidget* widget, QPoint place);
void click(QWidget* widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
void doubleClick(QWidget* widget, QPoint place);
/// Releases the mouse button if it is down. A modal screen that opens at a press leaves it so.
void releaseButton();

void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Types a text. Any line break becomes Enter, a tabulator Tab.
void type(const QString& text);
/// Presses a key by its name in Qt, with modifiers before it ("F3", "Ctrl+V"). False if there is no such key.
bool namedKey(const QString& name);

} // namespace Hand
