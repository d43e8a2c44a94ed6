#include "modEnde.h"

#include "Katego.h"
#include "Kontakt.h"
#include "Main.h"
#include "Screens.h"
#include "SuchKont.h"
#include "modStart.h"

namespace modEnde {

void mnuBeenden_Click() {
    modStart::SchliesseDatenbank();
    unload<Kontakt>();
    unload<Katego>();
    unload<SuchKont>();
    unload<Main>();
}

} // namespace modEnde
