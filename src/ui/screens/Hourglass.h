#pragma once

#include <QPointer>

class Screen;

/// Shows the hourglass over a screen until end() or its own destruction, so also if an error ends the routine
/// early. The screen may be destroyed first.
class Hourglass {
public:
    explicit Hourglass(Screen& shown);
    ~Hourglass() { end(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

    /// Call before showing a message box or another screen.
    void end();
    /// Leaves the hourglass on until the next Hourglass over this screen ends.
    void leave() { m_screen.clear(); }

private:
    QPointer<Screen> m_screen;
};
