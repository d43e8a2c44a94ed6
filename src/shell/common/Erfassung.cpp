#include "Erfassung.h"

#include "MsgBox.h"
#include "Session.h"

void Erfassung::sichern() const {
    const Session& s = session();
    if (s.Modus == u"EDIT"_qs && vollstaendig()) aendere(s.AktZeile);
    if (s.Modus == u"SAVE"_qs && vollstaendig()) speichere();
}

void Erfassung::entfernen() const {
    Session& s = session();
    if (s.Modus != u"EDIT"_qs) return;
    s.MsgAntwort = MsgBox(frage, vbYesNo);
    s.MsgAntwort == vbYes ? loesche(s.AktZeile) : beiNein();
}
