#pragma once

#include <QPointer>
#include <QWidget>

/// Shows the hourglass over a screen until end() or its own destruction, so also if an error ends the routine
/// early. The screen may be destroyed first.
class Hourglass {
public:
    explicit Hourglass(QWidget& screen)
        : m_screen(&screen) {
        screen.setCursor(Qt::WaitCursor);
    }
    ~Hourglass() { end(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

    /// Call before showing a message box or another screen.
    void end() {
        if (m_screen) m_screen->unsetCursor();
        leave();
    }
    /// Leaves the hourglass on until the next Hourglass over this screen ends.
    void leave() { m_screen.clear(); }

private:
    QPointer<QWidget> m_screen;
};
