#pragma once

#include <QString>

class Screen;

/// The routines behind the buttons save and delete of a screen.
struct Erfassung {
    bool (*vollstaendig)(); ///< false after a message box if the entry can't be saved
    void (*speichere)();
    void (*aendere)(int row);
    void (*loesche)(int row);
    QString frage;     ///< question asked before the record is deleted
    void (*beiNein)(); ///< called if the answer is no

    /// Changes the open record of the screen. If none is open, saves the entry as a new record.
    void sichern(const Screen& screen) const;
    /// Asks the question and deletes the open record. Does nothing if none is open.
    void entfernen(const Screen& screen) const;
};
