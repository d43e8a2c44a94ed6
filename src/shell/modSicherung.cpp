#include "modSicherung.h"

#include "Clock.h"
#include "RuntimeError.h"
#include "SafetyCopy.h"
#include "Session.h"
#include "modTools.h"

namespace modSicherung {

namespace {

QString datei() { return programFolder() + u"/uw01.mdb"_qs; }

} // namespace

QString Ordner() { return programFolder() + u"/Sicherung"_qs; }

bool SichereDatenbank() {
    try {
        keepSafetyCopy(datei(), modTools::passwort(), Ordner(), now());
        return true;
    } catch (const RuntimeError& error) {
        qWarning("%s", qUtf8Printable(error.description));
        return false;
    }
}

QString Fehlschlag() {
    return u"ACHTUNG: Die Sicherungskopie der Datenbank konnte nicht angelegt werden !\n\r"_qs
           u"Bitte prüfen Sie den Ordner - Sicherung - und den freien Speicherplatz. Eine beschädigte Datenbank "_qs
           u"meldet Uferwart beim nächsten Start."_qs;
}

bool DatenbankIstHeil() {
    if (!isCopyUnfinished(datei(), Ordner())) return true;
    if (!session().AktDatenbank.isSound()) return false;
    forgetUnfinishedCopy(datei(), Ordner());
    return true;
}

} // namespace modSicherung
