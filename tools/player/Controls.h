#pragma once

#include <QString>

class QPoint;
class QWidget;
class Screen;

/// Finds what a scenario names `Screen.control`. Everything that is missing or can't be used is a
/// CommandFailure.
namespace Controls {

/// The screen itself for a name without a control.
QWidget* find(const QString& name);
Screen* findScreen(const QString& name);

template<typename T>
T* find(const QString& name, const QString& kind);

/// The screen that a control stands on; null for none.
Screen* screenOf(const QWidget* control);
/// `Screen.control` of a widget or of the nearest control around it.
QString nameOf(const QWidget* widget);

/// Fails unless a user could click the control now.
void requireUsable(QWidget* control, const QString& name);
/// The same for a place on it; scrolls it into view where it lies in a scroll area.
void requireReachable(QWidget* control, QPoint place, const QString& name);
/// Fails if a modal screen stands in front of the window.
void requireNotBlocked(const QWidget* widget, const QString& name);

[[noreturn]] void refuseKind(const QString& name, const QString& kind);

} // namespace Controls

template<typename T>
T* Controls::find(const QString& name, const QString& kind) {
    T* control = qobject_cast<T*>(find(name));
    if (!control) refuseKind(name, kind);
    return control;
}
