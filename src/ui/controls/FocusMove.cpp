#include "FocusMove.h"

#include <QApplication>
#include <QWidget>
#include <utility>

FocusState::FocusState(QWidget* control, std::function<void()> lost)
    : m_lost(std::move(lost)) {
    connect(qApp, &QApplication::focusChanged, this, [this, control](QWidget*, QWidget* focused) {
        if (focused && focused != control && focused->window() == control->window()) lose();
    });
}

bool FocusState::comes(Qt::FocusReason reason) { return !std::exchange(m_has, true) || movesFocus(reason); }

void FocusState::goes(Qt::FocusReason reason) {
    if (movesFocus(reason)) lose();
}

void FocusState::lose() {
    if (std::exchange(m_has, false)) m_lost();
}
