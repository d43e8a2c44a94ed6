#include "Conversions.h"
#include "ErrorTail.h"
#include "Meldungen.h"
#include "MsgBox.h"
#include "Session.h"
#include "Transaction.h"
#include "modArbeit.h"
#include "modKontakt.h"
#include "modSicherung.h"
#include "modStart.h"

#include <optional>

using namespace Qt::StringLiterals;

// The change of the fishing year.

namespace modStart {

namespace {

bool frageNachSystemjahr() {
    const QString blanks(66, u' ');
    return modRun::frage(
        u"WICHTIG: Akt. Systemjahr hat sich geändert ! Akt. Systemjahr = %1\n\r"_s
        u"Soll das Systemjahr als Fangjahr in die Systemparameter von Uferwart übernommen werden ?\n\r"_s
        u"Wenn Sie die Frage mit NEIN beantworten, wird Uferwart beendet. \n\r%2\n\r"_s
        u"Wollen Sie das Systemjahr als Fangjahr übernehmen?"_s.arg(session().AktJahr)
            .arg(blanks));
}

void schalteVor(qint32 altesJahr) {
    if (modRun::frage(u"ACHTUNG: Mehrleistungen der Arb.-Std ins neue Fangjahr übernehmen !"_s,
                      u"Uferwart [Arbeitscontrolling]"_s))
        modArbeit::UebernehmeStunden(altesJahr);
    else
        MsgBox(u"Mehrleistungs - Übernahme durch User verhindert !"_s, vbInformation);
    MsgBox(u"ACHTUNG: Jahresbeitragsflags der Mitglieder werden auf - nicht bezahlt - gesetzt !"_s,
           vbInformation);
    modKontakt::ReinitialisiereJB();
}

void schalteZurueck(qint32 altesJahr) {
    MsgBox(
        u"ACHTUNG: Mehrleistung der Arb.Std. ins neue Jahr kann nicht übernommen werden, da akt. Jahr\r\n"_s
        u" kleiner ist als altes Fangjahr. Bitte überprüfen Sie ihre Systemzeit !"_s,
        vbCritical);
    modArbeit::Ueberpruefe_auf_Uebertrag(altesJahr);
}

/// Writes the new year and returns the old one, or nothing if it could not be written. Then the caller must
/// leave out the rest of the change: the next start asks again, and would do it a second time.
std::optional<qint32> uebernehmeJahr(ErrorTail& step, Recordset& system, std::optional<Transaction>& change) {
    qint32 altesJahr = 0;
    step([&] { altesJahr = CLng(system.Collect(u"FJahr"_s)); });
    step([&] { change.emplace(session().AktDatenbank); });
    if (!change) return std::nullopt;
    step([&] { system.Edit(); });
    step([&] { system.Collect(u"FJahr"_s, qint32(session().AktJahr)); });
    return step([&] { system.Update(); }) ? std::optional(altesJahr) : std::nullopt;
}

/// Copies the database. False if that failed and the user does not want to go on without a copy.
bool istGesichert() {
    if (modSicherung::SichereDatenbank()) return true;
    return modRun::frage(modSicherung::Fehlschlag() +
                         u"\n\rSoll das neue Jahr trotzdem ohne Sicherungskopie beginnen ?"_s);
}

/// Changes the year in one transaction, so that all of it is written or, if the program is ended in the
/// middle, nothing.
void wechsleJahr(ErrorTail& step, bool& result) {
    Recordset system;
    step([&] { system = oeffneTabelle(u"System"_s); });
    std::optional<Transaction> change;
    const std::optional<qint32> altesJahr = uebernehmeJahr(step, system, change);
    result = true;
    if (altesJahr && *altesJahr < session().AktJahr) schalteVor(*altesJahr);
    if (altesJahr && *altesJahr > session().AktJahr) schalteZurueck(*altesJahr);
    step([&] { system.Close(); });
    if (change) step([&] { change->commit(); });
}

} // namespace

bool KontrolliereSystemJahr() {
    bool result = false;
    withErrorTail(u"modStart"_s, u"KontrolliereSystemJahr"_s, [&](ErrorTail& step) {
        Recordset system;
        qint16 fangjahr = 0;
        step([&] {
            system = oeffneTabelle(u"System"_s);
            if (system.RecordCount() == 0) session().Beschaedigt = true;
        });
        step([&] { fangjahr = CInt(system.Collect(u"FJahr"_s)); });
        // Closed before the question, so that a user who takes his time does not keep others from saving.
        step([&] { system.Close(); });
        result = fangjahr == session().AktJahr;
        if (!result && frageNachSystemjahr() && istGesichert()) wechsleJahr(step, result);
    });
    return result;
}

} // namespace modStart
