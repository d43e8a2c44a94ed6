#include "FocusMove.h"

#include <QApplication>
#include <QWidget>

void whenFocusIsElsewhere(QWidget* control, std::function<void()> told) {
    QObject::connect(qApp, &QApplication::focusChanged, control,
                     [control, told = std::move(told)](QWidget*, QWidget* focused) {
                         if (focused && focused != control && focused->window() == control->window()) told();
                     });
}
