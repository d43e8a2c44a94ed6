#pragma once

#include <QString>

/// Services of the frame for the screens in it. The frame knows all screens; a screen knows only this class.
class Rahmen {
public:
    virtual ~Rahmen() = default;

    /// Shows the area of an item of the navigation bar, as a click on the item does.
    virtual void zeigeBereich(const QString& key) = 0;
    /// Shows the list of members, which has no item of its own.
    virtual void zeigeMitgliederliste() = 0;
    /// Open a context menu at the mouse. The user's present rights enable its items.
    virtual void loadKontMenu_Mitgl() = 0;
    virtual void loadKontMenu_FAusw() = 0;
    /// Ends the program without a message box if the safety copy can't be made.
    virtual void beendeStill() = 0;
};

/// The frame of the running program, which sets it; null before it is made and after it is destroyed.
inline Rahmen*& rahmen() {
    static Rahmen* current = nullptr;
    return current;
}
