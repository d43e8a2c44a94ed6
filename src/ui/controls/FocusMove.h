#pragma once

#include <QObject>
#include <functional>

class QWidget;

/// True if the focus moves from control to control. A menu or message box over the screen only borrows the
/// focus: no control has lost or got it then.
inline bool movesFocus(Qt::FocusReason reason) {
    return reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason &&
           reason != Qt::ActiveWindowFocusReason;
}

/// Whether a control has the focus, also while it is only borrowed.
class FocusState : public QObject {
public:
    /// `lost` runs when the focus has moved on. It may have moved while a box was in front: then the control
    /// gets no event of its own.
    explicit FocusState(
        QWidget* control, std::function<void()> lost = [] {});

    /// Call when the control has handled an event. True if the focus has come to it, and not back from a
    /// box: also where it was moved here while another window was active, and arrives with the window's
    /// return.
    bool comesWith(const QEvent* event);

private:
    void lose();

    std::function<void()> m_lost;
    bool m_has = false;
};
