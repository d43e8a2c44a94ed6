#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "ErrorTail.h"
#include "Kontakt.h"
#include "KontaktFelder.h"
#include "KontaktUebers.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "TextBox.h"
#include "Uebersicht.h"
#include "ValueLabel.h"
#include "modKatego.h"
#include "modKontakt.h"
#include "modRun.h"

// What writes a contact: the tables `Kontakt` and `Mitglied`, and the overview, which is kept in step cell by
// cell since it is never loaded anew.

namespace modKontakt {

namespace {

const QString modul = u"modKontakt"_qs;

/// The number that the mask shows; 0, after the box, where it shows none.
qint32 nummerDerMaske(ErrorTail& step, const Kontakt& form) {
    qint32 knr = 0;
    step([&] { knr = CLng(form.lblKNr->Caption()); });
    return knr;
}

void fuegeMitgliedAn(ErrorTail& step, Recordset& mitglied, const Recordset& kontakt, const Kontakt& form) {
    step([&] { mitglied.AddNew(); });
    step([&] { mitglied.Collect(u"knr"_qs, kontakt.Collect(u"knr"_qs)); });
    KontaktFelder::schreibeMitglied(step, mitglied, form);
    step([&] { mitglied.Update(); });
}

/// A member's row as the mask has it; one that is missing is added.
void schreibeMitglied(ErrorTail& step, Recordset& mitglied, const Recordset& kontakt, qint32 knr,
                      const Kontakt& form) {
    if (!modRun::finde(step, mitglied, knr)) return fuegeMitgliedAn(step, mitglied, kontakt, form);
    step([&] { mitglied.Edit(); });
    KontaktFelder::schreibeMitglied(step, mitglied, form);
    step([&] { mitglied.Update(); });
}

/// The contact just made as a row of its open category. Its birthday stands there as the field has it.
std::array<Value, 10> alsZeile(const Recordset& kontakt) {
    const auto feld = [&](const QString& name) { return kontakt.Collect(name); };
    return {
        feld(u"knr"_qs),     u" "_qs,          feld(u"Firma"_qs), feld(u"Anrede"_qs),   feld(u"Nachname"_qs),
        feld(u"Vorname"_qs), feld(u"Tel1"_qs), feld(u"Fax"_qs),   feld(u"GebDatum"_qs), feld(u"EMail"_qs)};
}

/// The new contact in the overview. What the last press on a category left behind decides, whichever category
/// that was: listed at once, or only counted, to be read when the category is opened.
void zeigeNeuen(ErrorTail& step, Recordset& kontakt, const Kontakt& form) {
    const QString name = form.cboKatego->Text();
    const int row = Uebersicht::findeKategorie(ErmittleKategoNr(name));
    if (row < 0) return;
    const qint32 anzahl = Uebersicht::anzahl(row);
    if (session().LetzterKlappZustand && anzahl >= 1) {
        step([&] { kontakt.Index(u"PrimaryKey"_qs); });
        step([&] { kontakt.MoveLast(); });
        step([&] { Uebersicht::fuegeKontaktAn(row, alsZeile(kontakt)); });
    } else {
        step([&] { Uebersicht::legeKindMitPlatzhalterAn(row); });
    }
    step([&] { Uebersicht::schreibeMarke(row, name, anzahl + 1, Uebersicht::Abstand::Eins); });
}

} // namespace

void SpeicherKontakt() {
    withErrorTail(modul, u"SpeicherKontakt"_qs, [](ErrorTail& step) {
        const Kontakt& form = screen<Kontakt>();
        Recordset kontakt;
        Recordset mitglied;
        step([&] { kontakt = oeffneTabelle(u"Kontakt"_qs); });
        step([&] { kontakt.AddNew(); });
        step([&] { kontakt.Collect(u"kategonr"_qs, ErmittleKategoNr(form.cboKatego->Text())); });
        KontaktFelder::schreibeKontakt(step, kontakt, form);
        // The last row is the new one only if there is a new one: it would be somebody else otherwise.
        bool gespeichert = false;
        step([&] {
            kontakt.Update();
            gespeichert = true;
        });
        if (gespeichert && KontaktFelder::istMitglied(form)) {
            step([&] { mitglied = oeffneTabelle(u"Mitglied"_qs); });
            step([&] { kontakt.Index(u"PrimaryKey"_qs); });
            step([&] { kontakt.MoveLast(); });
            fuegeMitgliedAn(step, mitglied, kontakt, form);
            step([&] { mitglied.Close(); });
        }
        if (gespeichert) zeigeNeuen(step, kontakt, form);
        KontaktAnzeigeLoeschen();
        step([&] { kontakt.Close(); });
    });
}

namespace {

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

/// The new category of the edited contact, in the record and in the overview.
void wechsleKategorie(ErrorTail& step, Recordset& kontakt, qint32 knr, qint32 alteNr, qint32 neueNr, int row,
                      const Kontakt& form) {
    const QString alterName = ErmittleKategoName(alteNr);
    step([&] { kontakt.Collect(u"kategonr"_qs, neueNr); });
    step([&] { nimmAusKategorie(row, knr, alteNr, alterName); });
    step([&] { gibInKategorie(neueNr, form); });
}

/// Who leaves a member category loses the member's row, also on the way into the other one.
void loescheMitglied(ErrorTail& step, Recordset& mitglied, qint32 knr) {
    if (modRun::finde(step, mitglied, knr))
        step([&] { mitglied.Delete(); });
    else
        modRun::MeldeNichtVorhanden();
}

} // namespace

void UpdateKontakt(int row) {
    withErrorTail(modul, u"UpdateKontakt"_qs, [row](ErrorTail& step) {
        const Kontakt& form = screen<Kontakt>();
        Recordset kontakt;
        // Open until the contact is written too: what is written together reaches the file together.
        Recordset mitglied;
        qint32 alteNr = 0;
        bool mitMitglied = false;
        step([&] { kontakt = oeffneTabelle(u"Kontakt"_qs); });
        const qint32 knr = nummerDerMaske(step, form);
        if (modRun::finde(step, kontakt, knr)) {
            const qint32 neueNr = ErmittleKategoNr(form.cboKatego->Text());
            step([&] { kontakt.Edit(); });
            step([&] { alteNr = CLng(kontakt.Collect(u"kategonr"_qs)); });
            const bool warMitglied = modKatego::istSystemkategorie(ErmittleKategoName(alteNr));
            mitMitglied = warMitglied || KontaktFelder::istMitglied(form);
            if (mitMitglied) step([&] { mitglied = oeffneTabelle(u"Mitglied"_qs); });
            if (alteNr == neueNr) {
                step([&] { kontakt.Collect(u"kategonr"_qs, neueNr); });
                step([&] { aktualisiereZeile(row, knr, neueNr, form); });
            } else {
                wechsleKategorie(step, kontakt, knr, alteNr, neueNr, row, form);
                if (warMitglied) loescheMitglied(step, mitglied, knr);
            }
            KontaktFelder::schreibeKontakt(step, kontakt, form);
            step([&] { kontakt.Update(); });
            if (KontaktFelder::istMitglied(form)) schreibeMitglied(step, mitglied, kontakt, knr, form);
        } else {
            modRun::MeldeNichtVorhanden();
        }
        unload<Kontakt>();
        if (mitMitglied) step([&] { mitglied.Close(); });
        step([&] { kontakt.Close(); });
    });
}

namespace {

/// The overview after a change from the search: only what stands open there is touched.
void ziehtUm(qint32 knr, qint32 alteNr, const QString& alterName, qint32 neueNr, const Kontakt& form) {
    const int alt = Uebersicht::findeKategorie(alteNr);
    if (alt >= 0) {
        if (Uebersicht::istOffen(alt)) Uebersicht::entferneKontakt(alt, knr);
        Uebersicht::schreibeMarke(alt, alterName, Uebersicht::anzahl(alt) - 1);
    }
    const int neu = Uebersicht::findeKategorie(neueNr);
    if (neu < 0) return;
    Uebersicht::schreibeMarke(neu, form.cboKatego->Text(), Uebersicht::anzahl(neu) + 1);
    if (Uebersicht::istOffen(neu)) Uebersicht::fuegeKontaktAn(neu, KontaktFelder::alsZeile(form));
}

/// After a save from the search the category alone decides whether there is a member's row.
void richteMitglied(ErrorTail& step, Recordset& mitglied, const Recordset& kontakt, qint32 knr,
                    const Kontakt& form) {
    if (KontaktFelder::istMitglied(form)) return schreibeMitglied(step, mitglied, kontakt, knr, form);
    if (modRun::finde(step, mitglied, knr)) step([&] { mitglied.Delete(); });
}

} // namespace

void UpdateSQLKontakt() {
    withErrorTail(modul, u"UpdateSQLKontakt"_qs, [](ErrorTail& step) {
        const Kontakt& form = screen<Kontakt>();
        Recordset kontakt;
        Recordset mitglied;
        qint32 alteNr = 0;
        step([&] { kontakt = oeffneTabelle(u"Kontakt"_qs); });
        step([&] { mitglied = oeffneTabelle(u"Mitglied"_qs); });
        const qint32 knr = nummerDerMaske(step, form);
        if (modRun::finde(step, kontakt, knr)) {
            step([&] { alteNr = CLng(kontakt.Collect(u"kategonr"_qs)); });
            const QString alterName = ErmittleKategoName(alteNr);
            const qint32 neueNr = ErmittleKategoNr(form.cboKatego->Text());
            step([&] { kontakt.Edit(); });
            if (alterName != form.cboKatego->Text())
                step([&] { ziehtUm(knr, alteNr, alterName, neueNr, form); });
            else
                step([&] { bleibt(knr, neueNr, form); });
            step([&] { kontakt.Collect(u"kategonr"_qs, neueNr); });
            KontaktFelder::schreibeKontakt(step, kontakt, form);
            step([&] { kontakt.Update(); });
            richteMitglied(step, mitglied, kontakt, knr, form);
        } else {
            modRun::MeldeNichtVorhanden();
        }
        unload<Kontakt>();
        step([&] { kontakt.Close(); });
        step([&] { mitglied.Close(); });
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
        Recordset kontakt;
        Recordset mitglied;
        step([&] { kontakt = oeffneTabelle(u"Kontakt"_qs); });
        const qint32 knr = nummerDerMaske(step, form);
        const qint32 kategonr = ErmittleKategoNr(form.cboKatego->Text());
        if (modRun::finde(step, kontakt, knr)) {
            step([&] { kontakt.Delete(); });
            step([&] { mitglied = oeffneTabelle(u"Mitglied"_qs); });
            if (modRun::finde(step, mitglied, knr)) step([&] { mitglied.Delete(); });
            step([&] { mitglied.Close(); });
            step([&] { nimmHeraus(knr, kategonr, form.cboKatego->Text()); });
        } else {
            modRun::MeldeNichtVorhanden();
        }
        unload<Kontakt>();
        step([&] { kontakt.Close(); });
    });
}

} // namespace modKontakt
