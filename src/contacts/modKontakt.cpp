#include "modKontakt.h"

#include "Zugriff.h"

namespace modKontakt {

bool KontaktZugriff_Erlaubt() {
    return zugriffErlaubt(u"modKontakt"_qs, u"KontaktZugriff_Erlaubt"_qs, u"Kontakt"_qs);
}

} // namespace modKontakt
