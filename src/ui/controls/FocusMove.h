#pragma once

#include <functional>
#include <qnamespace.h>

class QWidget;

/// True if the focus moves from control to control. A menu or message box over the screen only borrows the
/// focus: no control has lost or got it then.
inline bool movesFocus(Qt::FocusReason reason) {
    return reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason &&
           reason != Qt::ActiveWindowFocusReason;
}

/// Calls `told` when another control of the same window has got the focus. Needed since the focus may move
/// while a message box is in front: the control that had it gets no event of its own then.
void whenFocusIsElsewhere(QWidget* control, std::function<void()> told);
