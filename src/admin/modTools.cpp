#include "modTools.h"

#include "DBEngine.h"
#include "Essentials.h"
#include "FileReplacement.h"
#include "MsgBox.h"
#include "Program.h"
#include "RuntimeError.h"
#include "Session.h"
#include "modSicherung.h"
#include "modStart.h"

#include <QApplication>
#include <QFile>

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

/// A whole file may still lack the record of `System`, without which no start comes to its end.
void restoreParametersOf(const QString& work) {
    try {
        restoreParameters(work, passwort());
    } catch (const RuntimeError&) {
        // Left over, it would stand in the way of the next repair.
        QFile::remove(work);
        throw;
    }
}

void rewriteFile(const QString& keptIn) {
    const Hourglass hourglass;
    const QString file = programFolder() + u"/uw01.mdb"_qs;
    const QString work = programFolder() + u"/temp/uwtmp.mdb"_qs;
    modStart::SchliesseDatenbank();
    const FileHold alone = DBEngine::CompactDatabase(file, work, connectText(), keptIn);
    if (!keptIn.isEmpty()) restoreParametersOf(work);
    replaceDatabase(work, file);
}

void tellFailure(const RuntimeError& error, const Words& words) {
    const QString title = u"Runtime - Error: %1"_qs.arg(error.number);
    if (error.number == cannotBeRepaired) {
        MsgBox(words.cannotBeRepaired, vbCritical, title);
        // A file that can't be repaired can't be copied either, which need not be told as well.
        return Program::current().finishUnseen();
    }
    MsgBox(words.failure, vbInformation, title);
    modStart::OeffneDatenbank();
}

/// Only with a folder in which to keep it is a damaged file salvaged.
void rewriteDatabase(const Words& words, const QString& keptIn = {}) {
    try {
        rewriteFile(keptIn);
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
         u"ACHTUNG: Datenbank konnte nicht erfolgreich repariert werden ! Uferwart beendet sich jetzt !"_qs},
        modSicherung::Ordner());
}

} // namespace modTools
