#pragma once

#include "Screens.h"

#include <QString>
#include <vector>

/// Access to the one instance of a screen type, so that a table can name a screen before it is made.
struct ScreenType {
    Screen& (*make)();   ///< the instance, made if there is none
    Screen* (*loaded)(); ///< the instance, or null

    template<typename T>
    static ScreenType of() {
        return {[]() -> Screen& { return the<T>(); },
                []() -> Screen* { return isLoaded<T>() ? &the<T>() : nullptr; }};
    }
};

/// An area of the program: a screen on the stage and its item in the navigation bar.
struct Bereich {
    ScreenType screen;
    QString key;             ///< key of the item; in lower case the name of its icon in assets/icons
    QString gruppe = {};     ///< group in the bar; empty if the screen has no item and is part of item `key`
    QString aufschrift = {}; ///< caption of the item
    QString recht = {};      ///< right (field of Gruppen) that a user needs to see the item

    int folge = 0;            ///< rank of `lade` in ladefolge()
    void (*lade)() = nullptr; ///< fills the grids after the login; null if there are none to fill

    bool hatTaste() const { return !gruppe.isEmpty(); }
};

/// All areas, in the order of the bar's groups and items.
const std::vector<Bereich>& bereiche();
/// The areas with a `lade`, in the order in which to call it.
std::vector<Bereich> ladefolge();
