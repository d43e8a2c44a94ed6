#include "Erfassung.h"

#include "Meldungen.h"
#include "Screen.h"

void Erfassung::sichern(const Screen& screen) const {
    if (!vollstaendig()) return;
    screen.isEditing() ? aendere(screen.gridRow()) : speichere();
}

void Erfassung::entfernen(const Screen& screen) const {
    if (!screen.isEditing()) return;
    modRun::frage(frage) ? loesche(screen.gridRow()) : beiNein();
}
