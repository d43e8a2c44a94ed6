#include "ComboBox.h"
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
#include "TextBox.h"
#include "Uebersicht.h"
#include "ValueLabel.h"
#include "modKatego.h"
#include "modKontakt.h"

// What writes a contact: the tables `Kontakt` and `Mitglied`, and the overview, which is kept in step cell by
// cell since it is never loaded anew.

namespace modKontakt {

namespace {

const QString modul = u"modKontakt"_qs;

/// The category and the fields of the mask, in the order in which they are written.
Datensatz::Felder felder(ErrorTail& step, const Kontakt& form, qint32 kategonr) {
    return [&step, &form, kategonr](Recordset& kontakt) {
        step([&] { kontakt.Collect(u"kategonr"_qs, kategonr); });
        KontaktFelder::schreibeKontakt(step, kontakt, form);
    };
}

/// The number that the mask shows; 0, after the box, where it shows none.
qint32 nummerDerMaske(ErrorTail& step, const Kontakt& form) {
    qint32 knr = 0;
    step([&] { knr = CLng(form.lblKNr->text()); });
    return knr;
}

void fuelleMitglied(ErrorTail& step, Recordset& mitglied, const Value& knr, const Kontakt& form) {
    step([&] { mitglied.Collect(u"knr"_qs, knr); });
    KontaktFelder::schreibeMitglied(step, mitglied, form);
}

/// A member's row as the mask has it; one that is missing is added.
bool schreibeMitglied(ErrorTail& step, Recordset& mitglied, qint32 knr, const Kontakt& form) {
    if (Datensatz::finde(step, mitglied, knr)) {
        step([&] { mitglied.Edit(); });
        KontaktFelder::schreibeMitglied(step, mitglied, form);
    } else {
        step([&] { mitglied.AddNew(); });
        fuelleMitglied(step, mitglied, knr, form);
    }
    return step([&] { mitglied.Update(); });
}

/// The fields of a contact that its row in the overview is made from. Its birthday stands there as the field
/// has it.
Datensatz::Danach liesZeile(ErrorTail& step, std::vector<Value>& zeile) {
    return Datensatz::lies(step, zeile,
                           {u"knr"_qs, u"Firma"_qs, u"Anrede"_qs, u"Nachname"_qs, u"Vorname"_qs, u"Tel1"_qs,
                            u"Fax"_qs, u"GebDatum"_qs, u"EMail"_qs});
}

} // namespace

void SpeicherKontakt() {
    withErrorTail(modul, u"SpeicherKontakt"_qs, [](ErrorTail& step) {
        const Kontakt& form = screen<Kontakt>();
        const auto kategonr = ermittleNummer(&ErmittleKategoNr, form.cboKatego);
        if (!kategonr) return;
        std::vector<Value> zeile;
        const auto danach = [&](Recordset& kontakt) {
            liesZeile(step, zeile)(kontakt);
            return !KontaktFelder::istMitglied(form) ||
                   Datensatz::speichere(
                       step, u"Mitglied"_qs,
                       [&](Recordset& mitglied) { fuelleMitglied(step, mitglied, zeile[0], form); }, {});
        };
        if (Datensatz::speichere(step, u"Kontakt"_qs, felder(step, form, *kategonr), danach)) {
            // The place of the picture.
            zeile.insert(zeile.begin() + 1, u" "_qs);
            step([&] { Uebersicht::zeigeNeuen(*kategonr, form.cboKatego->currentText(), zeile); });
            step([&] { Uebersicht::markiere(*kategonr, CLng(zeile[0])); });
        }
        KontaktAnzeigeLoeschen();
    });
}

namespace {

/// Who leaves a member category loses the member's row, also on the way into the other one.
bool loescheMitglied(ErrorTail& step, Recordset& mitglied, qint32 knr) {
    if (Datensatz::finde(step, mitglied, knr)) return step([&] { mitglied.Delete(); });
    modRun::MeldeNichtVorhanden();
    return true;
}

/// Writes the member's row that belongs to the changed contact.
bool zieheMitgliedNach(ErrorTail& step, const Uebersicht::Umzug& umzug, const Kontakt& form) {
    const bool verlaesst = umzug.wechselt() && modKatego::istSystemkategorie(umzug.alterName);
    const bool istMitglied = KontaktFelder::istMitglied(form);
    if (!verlaesst && !istMitglied) return true;
    return Datensatz::schreibe(step, u"Mitglied"_qs, [&](Recordset& mitglied) {
        if (verlaesst && !loescheMitglied(step, mitglied, umzug.knr)) return false;
        return !istMitglied || schreibeMitglied(step, mitglied, umzug.knr, form);
    });
}

/// After a save from the search the category alone decides whether there is a member's row.
bool richteMitglied(ErrorTail& step, const Uebersicht::Umzug& umzug, const Kontakt& form) {
    return Datensatz::schreibe(step, u"Mitglied"_qs, [&](Recordset& mitglied) {
        if (KontaktFelder::istMitglied(form)) return schreibeMitglied(step, mitglied, umzug.knr, form);
        return !Datensatz::finde(step, mitglied, umzug.knr) || step([&] { mitglied.Delete(); });
    });
}

using Dazu = bool (*)(ErrorTail& step, const Uebersicht::Umzug& umzug, const Kontakt& form);

/// Changes the contact that the mask shows, with what `dazu` writes for it, and then the overview.
void aendere(ErrorTail& step, bool ausSuche, Dazu dazu) {
    const Kontakt& form = screen<Kontakt>();
    const QString kategorie = form.cboKatego->currentText();
    const auto neueNr = ermittleNummer(&ErmittleKategoNr, form.cboKatego);
    if (!neueNr) return;
    Uebersicht::Umzug umzug{
        .knr = nummerDerMaske(step, form), .neueNr = *neueNr, .neuerName = kategorie, .ausSuche = ausSuche};
    const auto schreibe = [&](Recordset& kontakt) {
        step([&] { umzug.alteNr = CLng(kontakt.Collect(u"kategonr"_qs)); });
        umzug.alterName = ErmittleKategoName(umzug.alteNr);
        felder(step, form, umzug.neueNr)(kontakt);
    };
    if (Datensatz::aendere(step, u"Kontakt"_qs, umzug.knr, schreibe,
                           [&](Recordset&) { return dazu(step, umzug, form); })) {
        step([&] { Uebersicht::zeigeGeaenderten(umzug, KontaktFelder::alsZeile(form)); });
        step([&] { Uebersicht::markiere(umzug.neueNr, umzug.knr); });
    }
    unload<Kontakt>();
}

} // namespace

void UpdateKontakt() {
    withErrorTail(modul, u"UpdateKontakt"_qs,
                  [](ErrorTail& step) { aendere(step, false, &zieheMitgliedNach); });
}

void UpdateSQLKontakt() {
    withErrorTail(modul, u"UpdateSQLKontakt"_qs,
                  [](ErrorTail& step) { aendere(step, true, &richteMitglied); });
}

void LoescheKontakt() {
    withErrorTail(modul, u"LoescheKontakt"_qs, [](ErrorTail& step) {
        const Kontakt& form = screen<Kontakt>();
        const qint32 knr = nummerDerMaske(step, form);
        const qint32 kategonr = ErmittleKategoNr(form.cboKatego->currentText());
        const auto mitglied = [&](Recordset&) {
            return Datensatz::schreibe(step, u"Mitglied"_qs, [&](Recordset& satz) {
                return !Datensatz::finde(step, satz, knr) || step([&] { satz.Delete(); });
            });
        };
        if (Datensatz::loesche(step, u"Kontakt"_qs, knr, mitglied))
            step([&] { Uebersicht::entferneKontakt(kategonr, form.cboKatego->currentText(), knr); });
        unload<Kontakt>();
    });
}

} // namespace modKontakt
