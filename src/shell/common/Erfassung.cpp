#include "Erfassung.h"

#include "Meldungen.h"
#include "Screen.h"

void Erfassung::sichern(const Screen& form) const {
    if (!vollstaendig()) return;
    form.isEditing() ? aendere(form.gridRow()) : speichere();
}

void Erfassung::entfernen(const Screen& form) const {
    if (!form.isEditing()) return;
    modRun::frage(frage) ? loesche(form.gridRow()) : beiNein();
}
