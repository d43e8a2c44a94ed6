#include "Eingaben.h"

#include "Meldungen.h"

#include <algorithm>

namespace modRun {

QWidget* erstesLeere(std::initializer_list<Eingabe> eingaben) {
    const auto leere = std::ranges::find_if(eingaben, &Eingabe::leer);
    return leere == eingaben.end() ? nullptr : leere->feld;
}

bool fehlerfrei(QWidget* schuld) {
    if (schuld) MeldeEingabeFehler(schuld);
    return !schuld;
}

} // namespace modRun
