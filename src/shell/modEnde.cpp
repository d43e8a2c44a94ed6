#include "modEnde.h"

#include "Main.h"
#include "Screens.h"
#include "modStart.h"

namespace modEnde {

void mnuBeenden_Click() {
    modStart::SchliesseDatenbank();
    unload<Main>();
}

} // namespace modEnde
