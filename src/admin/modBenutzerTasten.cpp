#include "Benutzer.h"
#include "MsgBox.h"
#include "Screens.h"
#include "TextBox.h"
#include "modBenutzer.h"

using namespace Qt::StringLiterals;

namespace modBenutzer {

namespace {

/// True if both passwords are equal, in case too. Otherwise shows a message box and empties the entry fields.
bool passwortBestaetigt() {
    const Benutzer& screen = the<Benutzer>();
    if (screen.txtPassw->text() == screen.txtPasswBest->text()) return true;
    MsgBox(u"Passwortbestätigung stimmt nicht mit Passwort überein\n\rBitte versuchen Sie es nochmal !"_s,
           vbInformation);
    LeereBenutzerEingabe();
    screen.txtBenutzer->setFocus();
    return false;
}

bool benutzerVollstaendig() { return PruefeBenutzerEingabe() && passwortBestaetigt(); }

} // namespace

Erfassung benutzerErfassung() {
    return {.vollstaendig = &benutzerVollstaendig,
            .speichere = &SpeicherBenutzer,
            .aendere = &UpdateBenutzer,
            .loesche = &LoescheBenutzer,
            .frage = u"Achtung: Benutzer wirklich löschen ?"_s,
            .beiNein = &LeereBenutzerEingabe};
}

Erfassung gruppenErfassung() {
    return {.vollstaendig = &PruefeGruppenEingabe,
            .speichere = &SpeicherBG,
            .aendere = &UpdateBG,
            .loesche = &LoescheZugriff,
            .frage =
                u"Achtung: Benutzer - Referenzen in der Benutzertabelle werden ebenfalls gelöscht !\r\n"_s
                u"Trotzdem löschen ?"_s,
            .beiNein = &LeereBenutzerEingabe};
}

} // namespace modBenutzer
