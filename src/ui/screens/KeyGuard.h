#pragma once

#include <QElapsedTimer>
#include <QObject>

/// Keeps keys from a window that were meant for the window below: a key held down since before, and a key
/// pressed in the first moments, before the user can have read the window. Create it before the window is
/// shown.
class KeyGuard : public QObject {
public:
    explicit KeyGuard(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isMeant(const QKeyEvent& key) const;

    QWidget* m_window;
    QElapsedTimer m_shown;
    int m_pressed = 0; ///< the last key let through, which may repeat; 0 after a refused one
};
