#pragma once

#include "Screen.h"

#include <QPointer>
#include <QVector>

/// The screens that are alive, in the order of their making.
namespace Screens {

/// Call when the screen has its toolbars: it looks for them.
void add(Screen* screen);
/// Runs Form_Unload, takes the screen off the stage and destroys it. A screen may unload itself: it is
/// destroyed only after all handlers have returned. During Form_Unload the<T>() still returns it.
void remove(Screen* screen);
/// Only for the screen's destructor and remove().
void forget(Screen* screen);
/// False once a screen has been unloaded, even if it is not destroyed yet.
bool isAlive(const Screen* screen);
QVector<Screen*> all();
Screen* byName(const QString& name); ///< null if there is none
/// The screen in sight on which a record stands open: a modal one, or the one in front of the stage. Null if
/// there is none.
Screen* editing();
/// Gives up the record of every screen, as a press in a toolbar does when its handler has run.
void giveUpRecords();
/// Removes every screen, the latest first. Call at the program's end.
void removeAll();

} // namespace Screens

namespace detail {
template<typename T>
inline QPointer<T> latest; ///< the instance last made
}

/// True if the instance exists; does not make it.
template<typename T>
bool isLoaded() {
    return Screens::isAlive(detail::latest<T>);
}

/// The one instance of a screen. The first use makes it and runs its Form_Load. Throws ProgramEnded instead
/// of making one after the program's end.
template<typename T>
T& the() {
    if (isLoaded<T>()) return *detail::latest<T>;
    if (eventsEnded()) throw ProgramEnded{};
    T* made = new T;
    detail::latest<T> = made;
    Screens::add(made);
    runEvent([made] { made->Form_Load(); });
    return *made;
}

/// Removes the instance if there is one. The next the<T>() makes a new one.
template<typename T>
void unload() {
    Screens::remove(detail::latest<T>);
}
