#pragma once

#include "Screens.h"

#include <QString>
#include <vector>

/// A screen by its type, so that it can be asked for without being made.
struct ScreenType {
    Screen& (*make)();   ///< makes it if there is none
    Screen* (*loaded)(); ///< null if there is none

    template<typename T>
    static ScreenType of() {
        return {[]() -> Screen& { return the<T>(); },
                []() -> Screen* { return isLoaded<T>() ? &the<T>() : nullptr; }};
    }
};

/// An area of the program: a screen that can be on the stage, and its item in the navigation bar.
struct Bereich {
    ScreenType screen;
    QString key;             ///< of the item; in small letters the name of its icon in assets/icons
    QString gruppe = {};     ///< of the bar; empty for a screen without an item, shown as part of item `key`
    QString aufschrift = {}; ///< of the item
    QString recht = {};      ///< the field of Gruppen without which a user has no such item

    int folge = 0;            ///< the place of `lade` among all of them
    void (*lade)() = nullptr; ///< fills the grids after the login; null if nothing is to be filled

    bool hatTaste() const { return !gruppe.isEmpty(); }
};

/// All areas, in the order of the bar's groups and items.
const std::vector<Bereich>& bereiche();
/// The areas with grids to fill, in the order in which these are filled.
std::vector<Bereich> ladefolge();
