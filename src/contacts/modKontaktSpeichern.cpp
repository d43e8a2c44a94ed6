#include "Conversions.h"
#include "DataTable.h"
#include "Datensatz.h"
#include "ErrorTail.h"
#include "Kontakt.h"
#include "KontaktFelder.h"
#include "KontaktUebers.h"
#include "Meldungen.h"
#include "Namen.h"
#include "Recordset.h"
#include "Screens.h"
#include "Uebersicht.h"
#include "modKatego.h"
#include "modKontakt.h"

using namespace Qt::StringLiterals;

// Writes contacts to the tables `Kontakt` and `Mitglied`. The overview is never loaded again, so its cells
// are updated one by one.

namespace modKontakt {

namespace {

const QString modul = u"modKontakt"_s;

/// Sets the category and the fields of the screen, in the order in which they are written.
Datensatz::Felder felder(ErrorTail& step, const Kontakt& screen, qint32 kategonr) {
    return [&step, &screen, kategonr](Recordset& kontakt) {
        step([&] { kontakt.Collect(u"kategonr"_s, kategonr); });
        KontaktFelder::schreibeKontakt(step, kontakt, screen);
    };
}

/// The number that the screen shows; 0, after a message box, if it shows none.
qint32 nummerDerMaske(ErrorTail& step, const Kontakt& screen) {
    qint32 knr = 0;
    step([&] { knr = CLng(screen.lblKNr->text()); });
    return knr;
}

void fuelleMitglied(ErrorTail& step, Recordset& mitglied, const Value& knr, const Kontakt& screen) {
    step([&] { mitglied.Collect(u"knr"_s, knr); });
    KontaktFelder::schreibeMitglied(step, mitglied, screen);
}

/// Writes the member's row from the screen. Adds the row if it is missing.
bool schreibeMitglied(ErrorTail& step, Recordset& mitglied, qint32 knr, const Kontakt& screen) {
    if (Datensatz::finde(step, mitglied, knr)) {
        step([&] { mitglied.Edit(); });
        KontaktFelder::schreibeMitglied(step, mitglied, screen);
    } else {
        step([&] { mitglied.AddNew(); });
        fuelleMitglied(step, mitglied, knr, screen);
    }
    return step([&] { mitglied.Update(); });
}

/// Reads the fields that the contact's row in the overview shows. The birthday is shown as stored.
Datensatz::Danach liesZeile(ErrorTail& step, std::vector<Value>& zeile) {
    return Datensatz::lies(step, zeile,
                           {u"knr"_s, u"Firma"_s, u"Anrede"_s, u"Nachname"_s, u"Vorname"_s, u"Tel1"_s,
                            u"Fax"_s, u"GebDatum"_s, u"EMail"_s});
}

} // namespace

void SpeicherKontakt() {
    withErrorTail(modul, u"SpeicherKontakt"_s, [](ErrorTail& step) {
        const Kontakt& screen = the<Kontakt>();
        const auto kategonr = ermittleNummer(&ErmittleKategoNr, screen.cboKatego);
        if (!kategonr) return;
        std::vector<Value> zeile;
        const auto danach = [&](Recordset& kontakt) {
            liesZeile(step, zeile)(kontakt);
            return !KontaktFelder::istMitglied(screen) ||
                   Datensatz::speichere(
                       step, u"Mitglied"_s,
                       [&](Recordset& mitglied) { fuelleMitglied(step, mitglied, zeile[0], screen); }, {});
        };
        if (Datensatz::speichere(step, u"Kontakt"_s, felder(step, screen, *kategonr), danach)) {
            // The picture's cell.
            zeile.insert(zeile.begin() + 1, u" "_s);
            step([&] { Uebersicht::zeigeNeuen(*kategonr, screen.cboKatego->currentText(), zeile); });
            step([&] { Uebersicht::markiere(*kategonr, CLng(zeile[0])); });
        }
        KontaktAnzeigeLoeschen();
    });
}

namespace {

/// Deletes the member's row of a contact that leaves a member category, even for the other one.
bool loescheMitglied(ErrorTail& step, Recordset& mitglied, qint32 knr) {
    if (Datensatz::finde(step, mitglied, knr)) return step([&] { mitglied.Delete(); });
    modRun::MeldeNichtVorhanden();
    return true;
}

/// Writes, replaces or deletes the member's row of a changed contact.
bool zieheMitgliedNach(ErrorTail& step, const Uebersicht::Umzug& umzug, const Kontakt& screen) {
    const bool verlaesst = umzug.wechselt() && modKatego::istSystemkategorie(umzug.alterName);
    const bool istMitglied = KontaktFelder::istMitglied(screen);
    if (!verlaesst && !istMitglied) return true;
    return Datensatz::schreibe(step, u"Mitglied"_s, [&](Recordset& mitglied) {
        if (verlaesst && !loescheMitglied(step, mitglied, umzug.knr)) return false;
        return !istMitglied || schreibeMitglied(step, mitglied, umzug.knr, screen);
    });
}

/// The same for a contact opened from the search. The new category alone decides: a member
/// has a row, any other contact has none.
bool richteMitglied(ErrorTail& step, const Uebersicht::Umzug& umzug, const Kontakt& screen) {
    return Datensatz::schreibe(step, u"Mitglied"_s, [&](Recordset& mitglied) {
        if (KontaktFelder::istMitglied(screen)) return schreibeMitglied(step, mitglied, umzug.knr, screen);
        return !Datensatz::finde(step, mitglied, umzug.knr) || step([&] { mitglied.Delete(); });
    });
}

using Dazu = bool (*)(ErrorTail& step, const Uebersicht::Umzug& umzug, const Kontakt& screen);

/// Changes the contact that the screen shows; `dazu` writes its member's row in the same action. Then updates
/// the overview.
void aendere(ErrorTail& step, bool ausSuche, Dazu dazu) {
    const Kontakt& screen = the<Kontakt>();
    const QString kategorie = screen.cboKatego->currentText();
    const auto neueNr = ermittleNummer(&ErmittleKategoNr, screen.cboKatego);
    if (!neueNr) return;
    Uebersicht::Umzug umzug{
        .knr = nummerDerMaske(step, screen), .neueNr = *neueNr, .neuerName = kategorie, .ausSuche = ausSuche};
    const auto schreibe = [&](Recordset& kontakt) {
        step([&] { umzug.alteNr = CLng(kontakt.Collect(u"kategonr"_s)); });
        umzug.alterName = ErmittleKategoName(umzug.alteNr);
        felder(step, screen, umzug.neueNr)(kontakt);
    };
    if (Datensatz::aendere(step, u"Kontakt"_s, umzug.knr, schreibe,
                           [&](Recordset&) { return dazu(step, umzug, screen); })) {
        step([&] { Uebersicht::zeigeGeaenderten(umzug, KontaktFelder::alsZeile(screen)); });
        step([&] { Uebersicht::markiere(umzug.neueNr, umzug.knr); });
    }
    unload<Kontakt>();
}

} // namespace

void UpdateKontakt() {
    withErrorTail(modul, u"UpdateKontakt"_s,
                  [](ErrorTail& step) { aendere(step, false, &zieheMitgliedNach); });
}

void UpdateSQLKontakt() {
    withErrorTail(modul, u"UpdateSQLKontakt"_s,
                  [](ErrorTail& step) { aendere(step, true, &richteMitglied); });
}

void LoescheKontakt() {
    withErrorTail(modul, u"LoescheKontakt"_s, [](ErrorTail& step) {
        const Kontakt& screen = the<Kontakt>();
        const qint32 knr = nummerDerMaske(step, screen);
        const qint32 kategonr = ErmittleKategoNr(screen.cboKatego->currentText());
        const auto mitglied = [&](Recordset&) {
            return Datensatz::schreibe(step, u"Mitglied"_s, [&](Recordset& satz) {
                return !Datensatz::finde(step, satz, knr) || step([&] { satz.Delete(); });
            });
        };
        if (Datensatz::loesche(step, u"Kontakt"_s, knr, mitglied))
            step([&] { Uebersicht::entferneKontakt(kategonr, screen.cboKatego->currentText(), knr); });
        unload<Kontakt>();
    });
}

} // namespace modKontakt
