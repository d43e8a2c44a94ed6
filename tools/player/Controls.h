#pragma once

#include <QString>

class QPoint;
class QWidget;
class Screen;

/// Finds controls by the name `Screen.control`. CommandFailure if one is missing or can't be used.
namespace Controls {

/// A name without a control gives the screen itself.
QWidget* find(const QString& name);
Screen* findScreen(const QString& name);

template<typename T>
T* find(const QString& name, const QString& kind);

/// The screen around a control; null if there is none.
Screen* screenOf(const QWidget* control);
/// The name `Screen.control` of a widget, or of the nearest named one around it; `none` if there is none.
QString nameOf(const QWidget* widget);

/// CommandFailure unless a user could click the control now.
void requireUsable(QWidget* control, const QString& name);
/// As requireUsable(), for a place on the control. Scrolls the control into view if it is in a scroll area.
void requireReachable(QWidget* control, QPoint place, const QString& name);
/// CommandFailure if a modal screen locks the widget's window.
void requireNotBlocked(const QWidget* widget, const QString& name);

[[noreturn]] void refuseKind(const QString& name, const QString& kind);

} // namespace Controls

template<typename T>
T* Controls::find(const QString& name, const QString& kind) {
    T* control = qobject_cast<T*>(find(name));
    if (!control) refuseKind(name, kind);
    return control;
}
