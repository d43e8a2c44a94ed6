#include "Benutzer.h"
#include "MsgBox.h"
#include "Screens.h"
#include "TextBox.h"
#include "modBenutzer.h"

namespace modBenutzer {

namespace {

/// Two passwords that differ in anything, capitals too, throw away what was typed.
bool passwortBestaetigt() {
    const Benutzer& form = screen<Benutzer>();
    if (form.txtPassw->text() == form.txtPasswBest->text()) return true;
    MsgBox(u"Passwortbestätigung stimmt nicht mit Passwort überein\n\rBitte versuchen Sie es nochmal !"_qs,
           vbInformation);
    LeereBenutzerEingabe();
    form.txtBenutzer->setFocus();
    return false;
}

bool benutzerVollstaendig() { return PruefeBenutzerEingabe() && passwortBestaetigt(); }

} // namespace

Erfassung benutzerErfassung() {
    return {.vollstaendig = &benutzerVollstaendig,
            .speichere = &SpeicherBenutzer,
            .aendere = &UpdateBenutzer,
            .loesche = &LoescheBenutzer,
            .frage = u"Achtung: Benutzer wirklich löschen ?"_qs,
            .beiNein = &LeereBenutzerEingabe};
}

Erfassung gruppenErfassung() {
    return {.vollstaendig = &PruefeGruppenEingabe,
            .speichere = &SpeicherBG,
            .aendere = &UpdateBG,
            .loesche = &LoescheZugriff,
            .frage =
                u"Achtung: Benutzer - Referenzen in der Benutzertabelle werden ebenfalls gelöscht !\r\n"_qs
                u"Trotzdem löschen ?"_qs,
            .beiNein = &LeereBenutzerEingabe};
}

} // namespace modBenutzer
