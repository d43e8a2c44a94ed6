#include "FocusMove.h"

#include <QApplication>
#include <QFocusEvent>
#include <QWidget>
#include <utility>

FocusState::FocusState(QWidget* control, std::function<void()> lost)
    : m_lost(std::move(lost)) {
    connect(qApp, &QApplication::focusChanged, this, [this, control](QWidget*, QWidget* focused) {
        if (focused && focused != control && focused->window() == control->window()) lose();
    });
}

bool FocusState::comesWith(const QEvent* event) {
    if (event->type() != QEvent::FocusIn && event->type() != QEvent::FocusOut) return false;
    const bool moves = movesFocus(static_cast<const QFocusEvent*>(event)->reason());
    if (event->type() == QEvent::FocusIn) return !std::exchange(m_has, true) || moves;
    if (moves) lose();
    return false;
}

void FocusState::lose() {
    if (std::exchange(m_has, false)) m_lost();
}
