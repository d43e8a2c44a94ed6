#pragma once

#include <QString>

class Screen;

/// The requests that a screen can make of the frame. The frame knows all screens, a screen knows only this.
class Rahmen {
public:
    virtual ~Rahmen() = default;

    /// Shows the area of this item of the bar, as a click on it does.
    virtual void zeigeBereich(const QString& key) = 0;
    /// Binds the screen to the item of the bar last made current; showing the screen is a separate step.
    virtual void binde(Screen& screen) = 0;
    /// Shows the list of members, which has no item of its own, bound to the current one.
    virtual void zeigeMitgliederliste() = 0;
    /// Pop up a context menu at the mouse, its items enabled by the rights of the moment.
    virtual void loadKontMenu_Mitgl() = 0;
    virtual void loadKontMenu_FAusw() = 0;
    /// Ends the program without a word about a safety copy that could not be made.
    virtual void beendeStill() = 0;
};

/// The frame of the running program; null before it is made and after its end.
Rahmen* rahmen();
/// Called by the frame itself, with null at its end.
void setRahmen(Rahmen* frame);
