#include "modEnde.h"

#include "Datenbank.h"
#include "Katego.h"
#include "Kontakt.h"
#include "Main.h"
#include "Screens.h"
#include "SuchKont.h"

namespace modEnde {

void mnuBeenden_Click() {
    SchliesseDatenbank();
    unload<Kontakt>();
    unload<Katego>();
    unload<SuchKont>();
    unload<Main>();
}

} // namespace modEnde
