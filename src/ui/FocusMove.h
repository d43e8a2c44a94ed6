#pragma once

#include <qnamespace.h>

/// True if the focus moves from control to control. A menu or a box that opens over the screen only borrows
/// it: no control has lost or got it then.
inline bool movesFocus(Qt::FocusReason reason) {
    return reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason &&
           reason != Qt::ActiveWindowFocusReason;
}
