#include "KeyGuard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

KeyGuard::KeyGuard(QWidget* window)
    : m_window(window) {
    qApp->installEventFilter(this);
}

bool KeyGuard::isMeant(const QKeyEvent& key) const {
    constexpr int firstMoments = 300; // milliseconds
    if (key.isAutoRepeat()) return key.key() == m_pressed;
    return m_shown.isValid() && m_shown.hasExpired(firstMoments);
}

bool KeyGuard::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (watched == m_window && type == QEvent::Show) m_shown.start();
    // An accepted ShortcutOverride comes back as a common KeyPress.
    const bool comesDown = type == QEvent::KeyPress || type == QEvent::ShortcutOverride;
    if (!comesDown || !watched->isWidgetType()) return false;
    if (static_cast<QWidget*>(watched)->window() != m_window) return false;

    const auto* key = static_cast<QKeyEvent*>(event);
    const bool meant = isMeant(*key);
    if (type == QEvent::KeyPress) m_pressed = meant ? key->key() : 0;
    if (!meant) event->accept();
    return !meant;
}
