#pragma once

#include <functional>
#include <qnamespace.h>

class QWidget;

/// True if the focus moves from control to control. A menu or a box that opens over the screen only borrows
/// it: no control has lost or got it then.
inline bool movesFocus(Qt::FocusReason reason) {
    return reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason &&
           reason != Qt::ActiveWindowFocusReason;
}

/// Tells when another control of the same window has the focus. It may have moved while a box was in front,
/// and then the control that had it never hears of it by an event of its own.
void whenFocusIsElsewhere(QWidget* control, std::function<void()> told);
