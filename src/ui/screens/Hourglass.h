#pragma once

#include <QPointer>

class Screen;

/// The hourglass over a screen for as long as it lives, also where an error ends a routine early. The screen
/// may end first.
class Hourglass {
public:
    explicit Hourglass(Screen& shown);
    ~Hourglass() { end(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

    /// Call before a message box or another screen comes up.
    void end();
    /// The hourglass stays until the next one over this screen ends.
    void leave() { m_screen.clear(); }

private:
    QPointer<Screen> m_screen;
};
