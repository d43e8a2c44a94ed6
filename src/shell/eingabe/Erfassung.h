#pragma once

#include <QString>

class Screen;

/// The routines of a screen on which records are entered, for its keys save and delete.
struct Erfassung {
    bool (*vollstaendig)(); ///< false, after a message box, if the entry cannot be stored
    void (*speichere)();
    void (*aendere)(int row);
    void (*loesche)(int row);
    QString frage;     ///< before the record is deleted
    void (*beiNein)(); ///< when the question is answered with no

    /// Changes the record that stands open on the screen, or stores the entry as a new one if none is open.
    void sichern(const Screen& screen) const;
    /// Deletes the open record after the question. Does nothing if none is open.
    void entfernen(const Screen& screen) const;
};
