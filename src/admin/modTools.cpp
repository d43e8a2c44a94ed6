#include "modTools.h"

#include "DBEngine.h"
#include "FileReplacement.h"
#include "Main.h"
#include "MsgBox.h"
#include "RuntimeError.h"
#include "Screens.h"
#include "Session.h"
#include "modStart.h"

#include <QApplication>

namespace modTools {

namespace {

constexpr int cannotBeRepaired = 3056;

struct Words {
    QString success;
    QString failure;
    QString cannotBeRepaired;
};

/// The hourglass over the whole program for the time of a scope.
class Hourglass {
public:
    Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

void rewriteFile() {
    const Hourglass hourglass;
    const QString file = programFolder() + u"/uw01.mdb"_qs;
    const QString work = programFolder() + u"/temp/uwtmp.mdb"_qs;
    modStart::SchliesseDatenbank();
    DBEngine::CompactDatabase(file, work, connectText());
    replaceDatabase(work, file);
}

void tellFailure(const RuntimeError& error, const Words& words) {
    const QString title = u"Runtime - Error: %1"_qs.arg(error.number);
    if (error.number == cannotBeRepaired) {
        MsgBox(words.cannotBeRepaired, vbCritical, title);
        unload<Main>();
        return;
    }
    MsgBox(words.failure, vbInformation, title);
    modStart::OeffneDatenbank();
}

void rewriteDatabase(const Words& words) {
    try {
        rewriteFile();
        MsgBox(words.success, vbInformation);
        modStart::OeffneDatenbank();
    } catch (const RuntimeError& error) {
        tellFailure(error, words);
    }
}

} // namespace

QString passwort() { return u"qx-1987-nkr"_qs; }
QString connectText() { return u";pwd="_qs + passwort(); }

void KomprimiereDatenbank() {
    rewriteDatabase(
        {u"Komprimierung der Datenbank erfolgreich durchgeführt !"_qs,
         u"ACHTUNG: Ein Fehler trat beim Komprimieren der Datenbank auf, die Komprimierung war nicht erfolgreich !"_qs,
         u"ACHTUNG: Datenbank konnte nicht erfolgreich komprimiert werden ! Uferwart beendet sich jetzt !"_qs});
}

void RepariereDatenbank() {
    rewriteDatabase(
        {u"Datenbank wurde erfolgreich repariert !"_qs,
         u"ACHTUNG: Ein Fehler trat beim Reparieren der Datenbank auf, die Reparatur war nicht erfolgreich !"_qs,
         u"ACHTUNG: Datenbank konnte nicht erfolgreich repariert werden ! Uferwart beendet sich jetzt !"_qs});
}

} // namespace modTools
