#include "modSicherung.h"

#include "Clock.h"
#include "Datenbank.h"
#include "RuntimeError.h"
#include "Session.h"
#include "Upkeep.h"

using namespace Qt::StringLiterals;

namespace modSicherung {

bool SichereDatenbank() {
    try {
        Upkeep::keepSafetyCopy(datenbankDatei(), datenbankPasswort(), sicherungsOrdner(), now());
        return true;
    } catch (const RuntimeError& error) {
        qWarning("%s", qUtf8Printable(error.description));
        return false;
    }
}

QString Fehlschlag() {
    return u"ACHTUNG: Die Sicherungskopie der Datenbank konnte nicht angelegt werden !\n\r"_s
           u"Bitte prüfen Sie den Ordner - Sicherung - und den freien Speicherplatz. Eine beschädigte Datenbank "_s
           u"meldet Uferwart beim nächsten Start."_s;
}

bool DatenbankIstHeil() {
    if (!Upkeep::isCopyUnfinished(datenbankDatei(), sicherungsOrdner())) return true;
    if (!session().AktDatenbank.isSound()) return false;
    Upkeep::forgetUnfinishedCopy(datenbankDatei(), sicherungsOrdner());
    return true;
}

} // namespace modSicherung
