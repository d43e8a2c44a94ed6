#include "Conversions.h"
#include "ErrorTail.h"
#include "Format.h"
#include "MsgBox.h"
#include "Session.h"
#include "Stunden.h"
#include "modArbeit.h"

#include <optional>

using namespace Qt::StringLiterals;

// Carries work hours over at the change of the year.

namespace modArbeit {

namespace {

const auto titel = u"Uferwart [Arbeitscontrolling]"_s;

/// Query of all members who are not exempt, including those who have left.
QString nichtBefreite(const QString& what) {
    return u"SELECT %1 FROM Kontakt k, Mitglied m WHERE k.KNr = m.KNr AND m.Befreit = False"_s.arg(what);
}

/// ErmittleStunden restarts the count of errors, so the count is kept over its call. Otherwise a failure at
/// every member would never reach its fifth message box.
double ermittleUebertrag(qint32 knr, qint32 altesJahr, double pflicht) {
    const KeptErrorCount kept;
    return BerechneSaldo(ErmittleStunden(knr, altesJahr), pflicht);
}

QString notiz(double saldo, qint32 altesJahr) {
    const QString art = saldo > 0 ? u"Mehrleistungsübertrag"_s : u"Minderleistungsübertrag"_s;
    return art + u" aus Arbeitsjahr "_s + QString::number(altesJahr);
}

void schreibeUebertrag(ErrorTail& step, Recordset& arbeit, qint32 knr, double saldo, qint32 altesJahr) {
    const qint16 jahr = session().AktJahr;
    step([&] { arbeit.AddNew(); });
    step([&] { arbeit.Collect(u"knr"_s, knr); });
    step([&] { arbeit.Collect(u"jahr"_s, qint32(jahr)); });
    step([&] { arbeit.Collect(u"Datum"_s, CDate(u"01.01.%1"_s.arg(jahr))); });
    step([&] { arbeit.Collect(u"ArbStd"_s, saldo); });
    step([&] { arbeit.Collect(u"Notiz"_s, notiz(saldo, altesJahr)); });
    step([&] { arbeit.Update(); });
}

bool istKeiner(const Recordset& anzahl) {
    if (anzahl.RecordCount() != 1) return false;
    const Value count = anzahl.Collect(u"Expr1000"_s);
    return count.isNull() || CLng(count) == 0;
}

void uebertrageAlle(ErrorTail& step, Recordset& mitglieder, Recordset& arbeit, double pflicht,
                    qint32 altesJahr) {
    // If MoveFirst fails, no row is current and Eof() tells nothing.
    if (!step([&] { mitglieder.MoveFirst(); })) return;
    step.forEachRow(mitglieder, [&] {
        std::optional<qint32> knr;
        step([&] { knr = CLng(mitglieder.Collect(u"KNr"_s)); });
        if (knr)
            schreibeUebertrag(step, arbeit, *knr, ermittleUebertrag(*knr, altesJahr, pflicht), altesJahr);
    });
}

void loesche(ErrorTail& step, const Recordset& treffer, Recordset& arbeit) {
    step([&] { arbeit.Seek(u"="_s, treffer.Collect(u"ArbNr"_s)); });
    if (step.test([&] { return !arbeit.NoMatch(); })) step([&] { arbeit.Delete(); });
}

void loescheTreffer(ErrorTail& step, Recordset& treffer, Recordset& arbeit, qint32 altesJahr) {
    step([&] { treffer.MoveFirst(); });
    step([&] { treffer.MoveLast(); });
    step([&] { treffer.MoveFirst(); });
    const bool einer = step.test([&] { return treffer.RecordCount() == 1; });
    if (!einer)
        MsgBox(u"ACHTUNG: Mehrere Übertragseintäge für das Datum 01.01.%1 gefunden !\n\r"_s.arg(altesJahr) +
                   u"Es gehen daher alle Arb.-Einträge dieses Datums verloren !"_s,
               vbInformation, titel);
    step([&] { arbeit.Index(u"PrimaryKey"_s); });
    if (einer)
        loesche(step, treffer, arbeit);
    else
        step.forEachRow(treffer, [&] { loesche(step, treffer, arbeit); });
}

} // namespace

void UebernehmeStunden(qint32 altesJahr) {
    withErrorTail(u"modArbeit"_s, u"UebernehmeStunden"_s, [&](ErrorTail& step) {
        Recordset mitglieder, anzahl, system, arbeit;
        step([&] { mitglieder = oeffneAbfrage(nichtBefreite(u"k.KNr"_s)); });
        step([&] { anzahl = oeffneAbfrage(nichtBefreite(u"COUNT(k.KNr)"_s)); });
        step([&] { system = oeffneTabelle(u"System"_s); });
        step([&] { arbeit = oeffneTabelle(u"Arbeit"_s); });
        if (step.test([&] { return istKeiner(anzahl); })) {
            MsgBox(u"Keine nicht befreiten Mitglieder vorhanden, daher wird der Vorgang abgebrochen"_s,
                   vbInformation);
            return;
        }
        double pflicht = 0;
        step([&] { pflicht = CDbl(system.Collect(u"PflichtStd"_s)); });
        uebertrageAlle(step, mitglieder, arbeit, pflicht, altesJahr);
        MsgBox(u"Mehrleistungen u. Minderleistungen der Arbeitsstunden ins neue Fangjahr erfolgreich "_s +
                   u"beendet !"_s,
               vbInformation, titel);
        for (Recordset* satz : {&mitglieder, &anzahl, &system, &arbeit}) step([&] { satz->Close(); });
    });
}

void Ueberpruefe_auf_Uebertrag(qint32 altesJahr) {
    withErrorTail(u"modArbeit"_s, u"Ueberpruefe_auf_Uebertrag"_s, [&](ErrorTail& step) {
        QString datum;
        Recordset treffer, arbeit;
        step([&] { datum = Format(CDate(u"01.01.%1"_s.arg(altesJahr)), u"\\#m\\/d\\/yyyy\\#"_s); });
        step([&] { treffer = oeffneAbfrage(u"SELECT ArbNr FROM Arbeit WHERE Datum = "_s + datum); });
        step([&] { arbeit = oeffneTabelle(u"Arbeit"_s); });
        if (step.test([&] { return treffer.RecordCount() != 0; }))
            loescheTreffer(step, treffer, arbeit, altesJahr);
        step([&] { treffer.Close(); });
        step([&] { arbeit.Close(); });
    });
}

} // namespace modArbeit
