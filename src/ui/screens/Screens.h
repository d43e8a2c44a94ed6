#pragma once

#include "Screen.h"

#include <QPointer>
#include <QVector>

/// The screens that are alive, in the order of their making.
namespace Screens {

void add(Screen* screen);
/// Runs Form_Unload, takes it off the stage and destroys it (at the latest when its own handlers have
/// returned: a screen may unload itself). Until its last event has run it is still the one that its class
/// reaches.
void remove(Screen* screen);
/// For the screen's own end only.
void forget(const Screen* screen);
/// False from the moment a screen has been unloaded, though it may still be on its way out.
bool isAlive(const Screen* screen);
QVector<Screen*> all();
Screen* byName(const QString& name); ///< null if there is none
/// End of the program: every screen goes, the latest first.
void removeAll();

} // namespace Screens

namespace detail {
template<typename T>
QPointer<T>& screenSlot() {
    static QPointer<T> slot;
    return slot;
}

template<typename T>
T* aliveScreen() {
    T* screen = screenSlot<T>();
    return Screens::isAlive(screen) ? screen : nullptr;
}
} // namespace detail

/// The one instance of a screen, made on first use, which is its load.
template<typename T>
T& screen() {
    if (T* alive = detail::aliveScreen<T>()) return *alive;
    if (eventsEnded()) throw ProgramEnded{};
    T* made = new T;
    detail::screenSlot<T>() = made;
    Screens::add(made);
    runEvent([made] { made->Form_Load(); });
    return *made;
}

template<typename T>
T& Screen::screen() {
    return ::screen<T>();
}

/// True if the instance exists; does not make it.
template<typename T>
bool isLoaded() {
    return detail::aliveScreen<T>() != nullptr;
}

/// Ends the instance if there is one; the next screen<T>() makes a new one.
template<typename T>
void unload() {
    if (T* alive = detail::aliveScreen<T>()) Screens::remove(alive);
}
