#include "modTools.h"

#include "DBEngine.h"
#include "Datenbank.h"
#include "MsgBox.h"
#include "Rahmen.h"
#include "RuntimeError.h"
#include "Session.h"
#include "Upkeep.h"

#include <QApplication>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace modTools {

namespace {

struct Words {
    QString success;
    QString failure;
    QString cannotBeRepaired;
};

void rewriteFile(const QString& keptIn) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto arrow = qScopeGuard(&QApplication::restoreOverrideCursor);
    const QString work = programFolder() + u"/temp/uwtmp.mdb"_s;
    SchliesseDatenbank();
    const FileHold alone = DBEngine::CompactDatabase(datenbankDatei(), work, datenbankVerbindung(), keptIn);
    Upkeep::replaceDatabase(work, datenbankDatei());
}

/// `keptIn` is the folder for a damaged file. If empty, a damaged file is not repaired but reported.
void rewriteDatabase(const Words& words, const QString& keptIn = {}) {
    try {
        rewriteFile(keptIn);
        MsgBox(words.success, vbInformation);
        OeffneDatenbank();
    } catch (const RuntimeError& error) {
        const QString title = u"Runtime - Error: %1"_s.arg(error.number);
        if (error.is(RuntimeError::cannotBeRepaired)) {
            MsgBox(words.cannotBeRepaired, vbCritical, title);
            // The safety copy at the end fails too: no second message box for that.
            return rahmen()->beendeStill();
        }
        MsgBox(words.failure, vbInformation, title);
        OeffneDatenbank();
    }
}

} // namespace

void KomprimiereDatenbank() {
    rewriteDatabase(
        {u"Komprimierung der Datenbank erfolgreich durchgeführt !"_s,
         u"ACHTUNG: Ein Fehler trat beim Komprimieren der Datenbank auf, die Komprimierung war nicht erfolgreich !"_s,
         u"ACHTUNG: Datenbank konnte nicht erfolgreich komprimiert werden ! Uferwart beendet sich jetzt !"_s});
}

void RepariereDatenbank() {
    rewriteDatabase(
        {u"Datenbank wurde erfolgreich repariert !"_s,
         u"ACHTUNG: Ein Fehler trat beim Reparieren der Datenbank auf, die Reparatur war nicht erfolgreich !"_s,
         u"ACHTUNG: Datenbank konnte nicht erfolgreich repariert werden ! Uferwart beendet sich jetzt !"_s},
        sicherungsOrdner());
}

} // namespace modTools
