#include "modSicherung.h"

#include "Clock.h"
#include "RuntimeError.h"
#include "SafetyCopy.h"
#include "Session.h"
#include "modTools.h"

namespace modSicherung {

namespace {

QString datei() { return programFolder() + u"/uw01.mdb"_qs; }
QString ordner() { return programFolder() + u"/Sicherung"_qs; }

} // namespace

void SichereDatenbank() {
    try {
        keepSafetyCopy(datei(), modTools::passwort(), ordner(), now());
    } catch (const RuntimeError& error) {
        qWarning("%s", qUtf8Printable(error.description));
    }
}

bool DatenbankIstHeil() {
    if (!isCopyUnfinished(datei(), ordner())) return true;
    if (!session().AktDatenbank.isSound()) return false;
    forgetUnfinishedCopy(datei(), ordner());
    return true;
}

} // namespace modSicherung
