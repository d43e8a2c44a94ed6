#include "modSicherung.h"

#include "Clock.h"
#include "RuntimeError.h"
#include "SafetyCopy.h"
#include "Session.h"
#include "modTools.h"

namespace modSicherung {

void SichereDatenbank() {
    try {
        keepSafetyCopy(programFolder() + u"/uw01.mdb"_qs, modTools::passwort(),
                       programFolder() + u"/Sicherung"_qs, now());
    } catch (const RuntimeError& error) {
        qWarning("%s", qUtf8Printable(error.description));
    }
}

} // namespace modSicherung
