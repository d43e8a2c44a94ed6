#pragma once

#include <QElapsedTimer>
#include <QObject>

/// Keeps keys from a window that were meant for the one below it: a key held down, and a key pressed before
/// anybody can have read what has come up. A key counts once it is pressed while the window is open, and not
/// in the first moments. Make it before the window is shown.
class KeyGuard : public QObject {
public:
    explicit KeyGuard(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isMeant(const QKeyEvent& key) const;

    QWidget* m_window;
    QElapsedTimer m_shown;
    int m_pressed = 0; ///< the last key pressed that was meant for the window; it may repeat
};
