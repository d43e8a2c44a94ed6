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
#include "Session.h"
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
    step([&] { knr = CLng(form.lblKNr->Caption()); });
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

/// The new contact in the overview. What the last press on a category left behind decides, whichever category
/// that was: listed at once, or only counted, to be read when the category is opened.
void zeigeNeuen(ErrorTail& step, std::span<const Value> zeile, qint32 kategonr, const Kontakt& form) {
    const int row = Uebersicht::findeKategorie(kategonr);
    if (row < 0) return;
    const qint32 anzahl = Uebersicht::anzahl(row);
    if (session().LetzterKlappZustand && anzahl >= 1)
        step([&] { Uebersicht::fuegeKontaktAn(row, zeile); });
    else
        step([&] { Uebersicht::legeKindMitPlatzhalterAn(row); });
    step([&] {
        Uebersicht::schreibeMarke(row, form.cboKatego->Text(), anzahl + 1, Uebersicht::Abstand::Eins);
    });
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
            zeigeNeuen(step, zeile, *kategonr, form);
            step([&] { Uebersicht::markiere(*kategonr, CLng(zeile[0])); });
        }
        KontaktAnzeigeLoeschen();
    });
}

namespace {

/// The way of a changed contact from its stored category into the mask's; both may be the same.
struct Umzug {
    qint32 neueNr;
    qint32 alteNr = 0;
    QString alterName = {};
};

/// A contact that keeps its category and whose row is not known: only an open category shows it.
void bleibt(qint32 knr, qint32 kategonr, const Kontakt& form) {
    const int kategorie = Uebersicht::findeKategorie(kategonr);
    if (Uebersicht::istOffen(kategorie))
        Uebersicht::aktualisiereKontakt(kategorie, knr, KontaktFelder::alsZeile(form));
}

/// A contact that keeps its category. A category that was opened in place of a contact has no cells for one:
/// the row is then looked for, as it is after a search.
void aktualisiereZeile(int row, qint32 knr, qint32 kategonr, const Kontakt& form) {
    if (screen<KontaktUebers>().tblKUebers->currentTable().parentRow < 0) return bleibt(knr, kategonr, form);
    Uebersicht::schreibeZellen(row, KontaktFelder::alsZeile(form));
}

/// Takes the opened row out of the child table that is current, and the contact out of its old category's
/// count. A category that is empty now has nothing to open.
void nimmAusKategorie(int row, qint32 knr, qint32 kategonr, const QString& name) {
    DataTable& grid = *screen<KontaktUebers>().tblKUebers;
    const bool zeileBekannt = grid.currentTable().parentRow >= 0;
    if (zeileBekannt) grid.removeRow(row);
    const int kategorie = Uebersicht::findeKategorie(kategonr);
    if (kategorie < 0) return;
    if (!zeileBekannt && Uebersicht::istOffen(kategorie)) Uebersicht::entferneKontakt(kategorie, knr);
    const qint32 rest = Uebersicht::anzahl(kategorie) - 1;
    Uebersicht::schreibeMarke(kategorie, name, rest);
    if (rest == 0) grid.removeChild(kategorie);
}

void gibInKategorie(qint32 kategonr, const Kontakt& form) {
    const int kategorie = Uebersicht::findeKategorie(kategonr);
    if (kategorie < 0) return;
    const qint32 anzahl = Uebersicht::anzahl(kategorie);
    if (anzahl == 0) {
        Uebersicht::legeKindAn(kategorie);
        Uebersicht::faerbeKind(kategorie);
    }
    Uebersicht::schreibeMarke(kategorie, form.cboKatego->Text(), anzahl + 1);
    Uebersicht::fuegeKontaktAn(kategorie, KontaktFelder::alsZeile(form));
}

/// The edited contact in the overview, where its row is known.
void zeigeGeaenderten(ErrorTail& step, qint32 knr, const Umzug& umzug, int row, const Kontakt& form) {
    if (umzug.alteNr == umzug.neueNr)
        return void(step([&] { aktualisiereZeile(row, knr, umzug.neueNr, form); }));
    step([&] { nimmAusKategorie(row, knr, umzug.alteNr, umzug.alterName); });
    step([&] { gibInKategorie(umzug.neueNr, form); });
}

/// Who leaves a member category loses the member's row, also on the way into the other one.
bool loescheMitglied(ErrorTail& step, Recordset& mitglied, qint32 knr) {
    if (Datensatz::finde(step, mitglied, knr)) return step([&] { mitglied.Delete(); });
    modRun::MeldeNichtVorhanden();
    return true;
}

/// Writes the member's row that belongs to the changed contact.
bool zieheMitgliedNach(ErrorTail& step, qint32 knr, const Umzug& umzug, const Kontakt& form) {
    const bool verlaesst = umzug.alteNr != umzug.neueNr && modKatego::istSystemkategorie(umzug.alterName);
    const bool istMitglied = KontaktFelder::istMitglied(form);
    if (!verlaesst && !istMitglied) return true;
    return Datensatz::schreibe(step, u"Mitglied"_qs, [&](Recordset& mitglied) {
        if (verlaesst && !loescheMitglied(step, mitglied, knr)) return false;
        return !istMitglied || schreibeMitglied(step, mitglied, knr, form);
    });
}

/// After a save from the search the category alone decides whether there is a member's row.
bool richteMitglied(ErrorTail& step, qint32 knr, const Kontakt& form) {
    return Datensatz::schreibe(step, u"Mitglied"_qs, [&](Recordset& mitglied) {
        if (KontaktFelder::istMitglied(form)) return schreibeMitglied(step, mitglied, knr, form);
        return !Datensatz::finde(step, mitglied, knr) || step([&] { mitglied.Delete(); });
    });
}

/// Changes the contact that the mask shows, with what `dazu` writes for it.
bool aendere(ErrorTail& step, qint32 knr, Umzug& umzug, const Kontakt& form,
             const std::function<bool()>& dazu) {
    const auto schreibe = [&](Recordset& kontakt) {
        step([&] { umzug.alteNr = CLng(kontakt.Collect(u"kategonr"_qs)); });
        umzug.alterName = ErmittleKategoName(umzug.alteNr);
        felder(step, form, umzug.neueNr)(kontakt);
    };
    return Datensatz::aendere(step, u"Kontakt"_qs, knr, schreibe, [&](Recordset&) { return dazu(); });
}

} // namespace

void UpdateKontakt(int row) {
    withErrorTail(modul, u"UpdateKontakt"_qs, [row](ErrorTail& step) {
        const Kontakt& form = screen<Kontakt>();
        const auto neueNr = ermittleNummer(&ErmittleKategoNr, form.cboKatego);
        if (!neueNr) return;
        Umzug umzug{*neueNr};
        const qint32 knr = nummerDerMaske(step, form);
        if (aendere(step, knr, umzug, form, [&] { return zieheMitgliedNach(step, knr, umzug, form); })) {
            zeigeGeaenderten(step, knr, umzug, row, form);
            Uebersicht::markiere(umzug.neueNr, knr);
        }
        unload<Kontakt>();
    });
}

namespace {

/// The overview after a change from the search: only what stands open there is touched.
void ziehtUm(qint32 knr, const Umzug& umzug, const Kontakt& form) {
    const int alt = Uebersicht::findeKategorie(umzug.alteNr);
    if (alt >= 0) {
        if (Uebersicht::istOffen(alt)) Uebersicht::entferneKontakt(alt, knr);
        Uebersicht::schreibeMarke(alt, umzug.alterName, Uebersicht::anzahl(alt) - 1);
    }
    const int neu = Uebersicht::findeKategorie(umzug.neueNr);
    if (neu < 0) return;
    Uebersicht::schreibeMarke(neu, form.cboKatego->Text(), Uebersicht::anzahl(neu) + 1);
    if (Uebersicht::istOffen(neu)) Uebersicht::fuegeKontaktAn(neu, KontaktFelder::alsZeile(form));
}

} // namespace

void UpdateSQLKontakt() {
    withErrorTail(modul, u"UpdateSQLKontakt"_qs, [](ErrorTail& step) {
        const Kontakt& form = screen<Kontakt>();
        const auto neueNr = ermittleNummer(&ErmittleKategoNr, form.cboKatego);
        if (!neueNr) return;
        Umzug umzug{*neueNr};
        const qint32 knr = nummerDerMaske(step, form);
        if (aendere(step, knr, umzug, form, [&] { return richteMitglied(step, knr, form); })) {
            if (umzug.alterName != form.cboKatego->Text())
                step([&] { ziehtUm(knr, umzug, form); });
            else
                step([&] { bleibt(knr, umzug.neueNr, form); });
            Uebersicht::markiere(umzug.neueNr, knr);
        }
        unload<Kontakt>();
    });
}

namespace {

/// The deleted contact leaves the overview.
void nimmHeraus(qint32 knr, qint32 kategonr, const QString& name) {
    const int kategorie = Uebersicht::findeKategorie(kategonr);
    if (kategorie < 0) return;
    if (Uebersicht::istOffen(kategorie)) Uebersicht::entferneKontakt(kategorie, knr);
    Uebersicht::schreibeMarke(kategorie, name, Uebersicht::anzahl(kategorie) - 1);
}

} // namespace

void LoescheKontakt() {
    withErrorTail(modul, u"LoescheKontakt"_qs, [](ErrorTail& step) {
        const Kontakt& form = screen<Kontakt>();
        const qint32 knr = nummerDerMaske(step, form);
        const qint32 kategonr = ErmittleKategoNr(form.cboKatego->Text());
        const auto mitglied = [&](Recordset&) {
            return Datensatz::schreibe(step, u"Mitglied"_qs, [&](Recordset& satz) {
                return !Datensatz::finde(step, satz, knr) || step([&] { satz.Delete(); });
            });
        };
        if (Datensatz::loesche(step, u"Kontakt"_qs, knr, mitglied))
            step([&] { nimmHeraus(knr, kategonr, form.cboKatego->Text()); });
        unload<Kontakt>();
    });
}

} // namespace modKontakt
