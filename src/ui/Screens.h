#pragma once

#include "Screen.h"

#include <QPointer>
#include <QVector>

/// The screens that are alive, in the order of their making.
namespace Screens {

void add(Screen* screen);
/// Runs Form_Unload, takes it off the stage and destroys it (at the latest when its own handlers have
/// returned: a screen may unload itself).
void remove(Screen* screen);
QVector<Screen*> all();
Screen* byName(const QString& name);
/// End of the program: every screen goes, the latest first.
void removeAll();

} // namespace Screens

namespace detail {
template<typename T>
QPointer<T>& screenSlot()
{
    static QPointer<T> slot;
    return slot;
}
} // namespace detail

/// The one instance of a screen, made on first use, which is its load.
template<typename T>
T& screen()
{
    QPointer<T>& slot = detail::screenSlot<T>();
    if (!slot) {
        slot = new T;
        Screens::add(slot);
        runEvent([] { detail::screenSlot<T>()->Form_Load(); });
    }
    return *slot;
}

/// True if the instance exists; does not make it.
template<typename T>
bool isLoaded()
{
    return !detail::screenSlot<T>().isNull();
}

/// Ends the instance if there is one; the next screen<T>() makes a new one.
template<typename T>
void unload()
{
    if (T* alive = detail::screenSlot<T>()) {
        detail::screenSlot<T>().clear();
        Screens::remove(alive);
    }
}
