#include "Benutzer.h"
#include "MsgBox.h"
#include "Screens.h"
#include "Session.h"
#include "TextBox.h"
#include "modBenutzer.h"

namespace modBenutzer {

namespace {

/// Two passwords that differ in anything, capitals too, throw away what was typed.
bool passwortBestaetigt() {
    const Benutzer& form = screen<Benutzer>();
    if (form.txtPassw->Text() == form.txtPasswBest->Text()) return true;
    MsgBox(u"Passwortbestätigung stimmt nicht mit Passwort überein\n\rBitte versuchen Sie es nochmal !"_qs,
           vbInformation);
    LeereBenutzerEingabe();
    form.txtBenutzer->setFocus();
    return false;
}

void speichereBenutzer() {
    const Session& s = session();
    if (s.Modus == u"EDIT"_qs && PruefeBenutzerEingabe() && passwortBestaetigt()) UpdateBenutzer(s.AktZeile);
    if (s.Modus == u"SAVE"_qs && PruefeBenutzerEingabe() && passwortBestaetigt()) SpeicherBenutzer();
}

void speichereGruppe() {
    const Session& s = session();
    if (s.Modus == u"EDIT"_qs && PruefeGruppenEingabe()) UpdateBG(s.AktZeile);
    if (s.Modus == u"SAVE"_qs && PruefeGruppenEingabe()) SpeicherBG();
}

void loesche(const QString& frage, void (*routine)(int)) {
    Session& s = session();
    if (s.Modus != u"EDIT"_qs) return;
    s.MsgAntwort = MsgBox(frage, vbYesNo);
    s.MsgAntwort == vbYes ? routine(s.AktZeile) : LeereBenutzerEingabe();
}

} // namespace

void bedieneBenutzer(const QString& key) {
    if (key == u"tbSpeichern"_qs) speichereBenutzer();
    if (key == u"tbLoeschen"_qs) loesche(u"Achtung: Benutzer wirklich löschen ?"_qs, &LoescheBenutzer);
    if (key == u"tbAnzLoeschen"_qs) LeereBenutzerEingabe();
}

void bedieneGruppe(const QString& key) {
    if (key == u"tbSpeichern"_qs) speichereGruppe();
    if (key == u"tbLoeschen"_qs)
        loesche(u"Achtung: Benutzer - Referenzen in der Benutzertabelle werden ebenfalls gelöscht !\r\n"_qs
                u"Trotzdem löschen ?"_qs,
                &LoescheZugriff);
    if (key == u"tbAnzLoeschen"_qs) LeereBenutzerEingabe();
}

} // namespace modBenutzer
