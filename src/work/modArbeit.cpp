#include "modArbeit.h"

#include "Zugriff.h"

namespace modArbeit {

bool ArbeitsZugriff_Erlaubt() {
    return zugriffErlaubt(u"modArbeit"_qs, u"ArbeitsZugriff_Erlaubt"_qs, u"Arbeit"_qs);
}

} // namespace modArbeit
