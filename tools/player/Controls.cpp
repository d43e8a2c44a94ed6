#include "Controls.h"

#include "CommandFailure.h"
#include "Hand.h"
#include "Screens.h"

#include <QApplication>
#include <QScrollArea>

using namespace Qt::StringLiterals;

namespace {

QWidget* findOn(const Screen* screen, const QString& name) {
    const auto controls = screen->findChildren<QWidget*>(name);
    for (QWidget* control : controls) {
        if (Controls::screenOf(control) == screen) return control;
    }
    return nullptr;
}

// Names that begin with qt_ belong to Qt's own parts of a control.
bool isNamed(const QWidget* widget) {
    return !widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_"_s);
}

void scrollIntoView(QWidget* control) {
    for (QWidget* around = control->parentWidget(); around; around = around->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(around)) area->ensureWidgetVisible(control);
    }
}

} // namespace

namespace Controls {

Screen* findScreen(const QString& name) {
    Screen* screen = Screens::byName(name);
    if (!screen) throw CommandFailure{u"there is no screen %1"_s.arg(name)};
    return screen;
}

QWidget* find(const QString& name) {
    const qsizetype point = name.indexOf(u'.');
    Screen* screen = findScreen(name.left(point));
    if (point < 0) return screen;
    QWidget* control = findOn(screen, name.mid(point + 1));
    if (!control) throw CommandFailure{u"there is no control %1"_s.arg(name)};
    return control;
}

Screen* screenOf(const QWidget* control) {
    QWidget* around = control ? control->parentWidget() : nullptr;
    while (around && !qobject_cast<Screen*>(around)) around = around->parentWidget();
    return qobject_cast<Screen*>(around);
}

QString nameOf(const QWidget* widget) {
    while (widget && !isNamed(widget)) widget = widget->parentWidget();
    if (!widget) return u"none"_s;
    const Screen* screen = screenOf(widget);
    if (qobject_cast<const Screen*>(widget) || !screen) return widget->objectName();
    return screen->objectName() + u'.' + widget->objectName();
}

void requireNotBlocked(const QWidget* widget, const QString& name) {
    if (!Hand::isLocked(widget->window())) return;
    const QString modal = QApplication::activeModalWidget()->objectName();
    throw CommandFailure{u"%1 lies behind the modal screen %2"_s.arg(name, modal)};
}

void requireUsable(QWidget* control, const QString& name) {
    if (!control->isVisible()) throw CommandFailure{u"%1 is not visible"_s.arg(name)};
    requireNotBlocked(control, name);
    if (!control->isEnabled()) throw CommandFailure{u"%1 is not enabled"_s.arg(name)};
}

void requireReachable(QWidget* control, QPoint place, const QString& name) {
    requireUsable(control, name);
    scrollIntoView(control);
    QWidget* window = control->window();
    const QWidget* hit = window->childAt(control->mapTo(window, place));
    if (hit == control || control->isAncestorOf(hit) || (!hit && control == window)) return;
    throw CommandFailure{u"%1 is covered by %2"_s.arg(name, hit ? nameOf(hit) : u"the window's edge"_s)};
}

void refuseKind(const QString& name, const QString& kind) {
    throw CommandFailure{u"%1 is no %2"_s.arg(name, kind)};
}

} // namespace Controls
