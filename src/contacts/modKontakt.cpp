#include "modKontakt.h"

#include "Conversions.h"
#include "DataTable.h"
#include "Datensatz.h"
#include "Feldwerte.h"
#include "Kontakt.h"
#include "Namen.h"
#include "Screens.h"
#include "Uebersicht.h"
#include "Zugriff.h"
#include "modKatego.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

// Writes contacts to the tables `Kontakt` and `Mitglied`, and shows them. The overview is never loaded again,
// so its cells are updated one by one.

namespace modKontakt {

namespace {

const QString modul = u"modKontakt"_s;

/// A field of a table and its control.
struct Feld {
    QString name;
    std::function<Value()> eingabe;
    std::function<void(const Recordset::Field&)> zeige;
};

Feld text(const QString& name, TextBox* box) {
    return {name, [=] { return box->text(); },
            [=](const Recordset::Field& feld) { box->setText(modRun::textOderLeer(feld)); }};
}

Feld datum(const QString& name, TextBox* box) {
    return {name, [=] { return modRun::DatumAusText(box); },
            [=](const Recordset::Field& feld) { box->setText(modRun::TextAusDatum(feld)); }};
}

Feld haken(const QString& name, QCheckBox* box) {
    return {name, [=] { return box->isChecked(); },
            [=](const Recordset::Field& feld) { box->setChecked(feld.Value() == Value(true)); }};
}

Feld wahl(const QString& name, QRadioButton* ja, QRadioButton* nein) {
    return {
        name, [=] { return ja->isChecked(); },
        [=](const Recordset::Field& feld) { (feld.Value() == Value(true) ? ja : nein)->setChecked(true); }};
}

Feld notiz(const QString& name, MemoBox* box) {
    return {name, [=] { return box->Text(); },
            [=](const Recordset::Field& feld) { box->setText(modRun::textOderLeer(feld)); }};
}

/// The fields of a contact, except for number and category.
std::vector<Feld> kontaktfelder(const Kontakt& screen) {
    return {text(u"Anrede"_s, screen.txtAnrede),    text(u"Nachname"_s, screen.txtNName),
            text(u"Vorname"_s, screen.txtVName),    text(u"Strasse"_s, screen.txtStrasse),
            text(u"PLZ"_s, screen.txtPLZ),          text(u"Ort"_s, screen.txtOrt),
            text(u"Tel1"_s, screen.txtTelPriv),     text(u"Tel2"_s, screen.txtTelGesch),
            text(u"Mobil"_s, screen.txtMobil),      text(u"Fax"_s, screen.txtFax),
            text(u"EMail"_s, screen.txtEMail),      text(u"Firma"_s, screen.txtFirma),
            datum(u"GebDatum"_s, screen.txtGebDat), haken(u"Bankeinzug"_s, screen.chkEinzug),
            text(u"BLZ"_s, screen.txtBLZ),          text(u"KreditInstitut"_s, screen.txtKInst),
            text(u"KontoNr"_s, screen.txtKontoNr),  notiz(u"Notiz"_s, screen.txtNotiz)};
}

std::vector<Feld> mitgliedsfelder(const Kontakt& screen) {
    return {wahl(u"Geschlecht"_s, screen.optMann, screen.optFrau),
            wahl(u"Befreit"_s, screen.optBefreit, screen.optNBefreit),
            wahl(u"Bezahlt"_s, screen.optBezahlt, screen.optNBezahlt),
            datum(u"Eintritt"_s, screen.txtEintritt),
            datum(u"Austritt"_s, screen.txtAustritt),
            haken(u"JG"_s, screen.chkJG)};
}

void schreibe(ErrorTail& step, Recordset& satz, const std::vector<Feld>& felder) {
    for (const Feld& feld : felder) step([&] { satz.Collect(feld.name, feld.eingabe()); });
}

void zeige(ErrorTail& step, const Recordset& satz, const std::vector<Feld>& felder) {
    for (const Feld& feld : felder) step([&] { feld.zeige(satz.Fields(feld.name)); });
}

void zeigeMitgliedZu(ErrorTail& step, qint32 knr, const Kontakt& screen) {
    liesSatz(
        step, [knr] { return u"SELECT * FROM Mitglied WHERE KNr = %1"_s.arg(knr); },
        [&](const Recordset& mitglied) { zeige(step, mitglied, mitgliedsfelder(screen)); });
}

} // namespace

bool KontaktZugriff_Erlaubt() { return zugriffErlaubt(modul, u"KontaktZugriff_Erlaubt"_s, u"Kontakt"_s); }

void loadKontakt(DataTable* grid, int row) {
    // A fifth error may leave the screen filled and hidden. "Neuer Kontakt" would then show it.
    const auto schliesse = qScopeGuard([] { unload<Kontakt>(); });
    withErrorTail(modul, u"loadKontakt"_s, [grid, row](ErrorTail& step) {
        qint32 knr = 0;
        Recordset kontakt;
        step([&] { knr = CLng(grid->cell(row, 0)); });
        step(
            [&] { kontakt = oeffneAbfrage(u"SELECT * FROM Kontakt WHERE KNr = "_s + QString::number(knr)); });
        if (step.test([&] { return kontakt.RecordCount() == 1; })) {
            Kontakt& screen = the<Kontakt>();
            step([&] { screen.lblKNr->setText(CStr(kontakt.Collect(u"knr"_s))); });
            // Setting the category also enables or disables the fields of a member.
            step(
                [&] { screen.cboKatego->setText(ErmittleKategoName(CLng(kontakt.Collect(u"kategonr"_s)))); });
            zeige(step, kontakt, kontaktfelder(screen));
            if (screen.istMitglied()) zeigeMitgliedZu(step, knr, screen);
            // Closed before the screen is shown: the file must not wait for the user.
            step([&] { kontakt.Close(); });
            screen.ShowModal();
        } else {
            modRun::MeldeNichtVorhanden();
            step([&] { kontakt.Close(); });
        }
    });
}

namespace {

/// Sets the category and the fields of the screen, in the order in which they are written.
void fuelleKontakt(ErrorTail& step, Recordset& kontakt, const Kontakt& screen, qint32 kategonr) {
    step([&] { kontakt.Collect(u"kategonr"_s, kategonr); });
    schreibe(step, kontakt, kontaktfelder(screen));
}

/// The number that the screen shows; 0, after a message box, if it shows none.
qint32 nummerDerMaske(ErrorTail& step, const Kontakt& screen) {
    qint32 knr = 0;
    step([&] { knr = CLng(screen.lblKNr->text()); });
    return knr;
}

/// Writes the member's row from the screen. Adds the row if it is missing.
bool schreibeMitglied(ErrorTail& step, Recordset& mitglied, qint32 knr, const Kontakt& screen) {
    const bool neu = !Datensatz::finde(step, mitglied, knr);
    step([&] { neu ? mitglied.AddNew() : mitglied.Edit(); });
    if (neu) step([&] { mitglied.Collect(u"knr"_s, knr); });
    schreibe(step, mitglied, mitgliedsfelder(screen));
    return step([&] { mitglied.Update(); });
}

/// Deletes the member's row. If there is none, shows a message box if it is `vermisst`.
bool loescheMitglied(ErrorTail& step, Recordset& mitglied, qint32 knr, bool vermisst) {
    if (Datensatz::finde(step, mitglied, knr)) return step([&] { mitglied.Delete(); });
    if (vermisst) modRun::MeldeNichtVorhanden();
    return true;
}

/// Writes, replaces or deletes the member's row of a changed contact. A contact that leaves a member category
/// loses its row, even for the other one. For a contact opened from the search the new category alone
/// decides: a member has a row, any other contact has none.
bool zieheMitgliedNach(ErrorTail& step, const Uebersicht::Umzug& umzug, const Kontakt& screen) {
    const bool bleibtMitglied = screen.istMitglied();
    const bool verlaesst =
        umzug.ausSuche ? !bleibtMitglied : umzug.wechselt() && modKatego::istSystemkategorie(umzug.alterName);
    if (!verlaesst && !bleibtMitglied) return true;
    return Datensatz::schreibe(step, u"Mitglied"_s, [&](Recordset& mitglied) {
        if (verlaesst && !loescheMitglied(step, mitglied, umzug.knr, !umzug.ausSuche)) return false;
        return !bleibtMitglied || schreibeMitglied(step, mitglied, umzug.knr, screen);
    });
}

/// The screen's contact as a row of the overview: values as typed, the picture's cell empty.
std::vector<Value> alsZeile(const Kontakt& screen) {
    return {screen.lblKNr->text(),     QString(),
            screen.txtFirma->text(),   screen.txtAnrede->text(),
            screen.txtNName->text(),   screen.txtVName->text(),
            screen.txtTelPriv->text(), screen.txtFax->text(),
            screen.txtGebDat->text(),  screen.txtEMail->text()};
}

/// Changes the contact that the screen shows, and its member's row in the same action. Then updates the
/// overview.
void aendere(const QString& routine, bool ausSuche) {
    withErrorTail(modul, routine, [ausSuche](ErrorTail& step) {
        const Kontakt& screen = the<Kontakt>();
        const QString kategorie = screen.cboKatego->currentText();
        const auto neueNr = ermittleNummer(&ErmittleKategoNr, screen.cboKatego);
        if (!neueNr) return;
        Uebersicht::Umzug umzug{.knr = nummerDerMaske(step, screen),
                                .neueNr = *neueNr,
                                .neuerName = kategorie,
                                .ausSuche = ausSuche};
        const auto felder = [&](Recordset& kontakt) {
            step([&] { umzug.alteNr = CLng(kontakt.Collect(u"kategonr"_s)); });
            umzug.alterName = ErmittleKategoName(umzug.alteNr);
            fuelleKontakt(step, kontakt, screen, umzug.neueNr);
        };
        if (Datensatz::aendere(step, u"Kontakt"_s, umzug.knr, felder, {},
                               [&](const auto&) { return zieheMitgliedNach(step, umzug, screen); })) {
            step([&] { Uebersicht::zeigeGeaenderten(umzug, alsZeile(screen)); });
            step([&] { Uebersicht::markiere(umzug.neueNr, umzug.knr); });
        }
        unload<Kontakt>();
    });
}

} // namespace

void SpeicherKontakt() {
    withErrorTail(modul, u"SpeicherKontakt"_s, [](ErrorTail& step) {
        Kontakt& screen = the<Kontakt>();
        const auto kategonr = ermittleNummer(&ErmittleKategoNr, screen.cboKatego);
        if (!kategonr) return;
        const auto felder = [&](Recordset& kontakt) { fuelleKontakt(step, kontakt, screen, *kategonr); };
        const auto dazu = [&](const Datensatz::Zeile& zeile) {
            const auto mitglied = [&](Recordset& satz) {
                step([&] { satz.Collect(u"knr"_s, zeile[0]); });
                schreibe(step, satz, mitgliedsfelder(screen));
            };
            return !screen.istMitglied() || Datensatz::speichere(step, u"Mitglied"_s, mitglied, {});
        };
        if (auto zeile = Datensatz::speichere(step, u"Kontakt"_s, felder, Uebersicht::felder, dazu)) {
            // The picture's cell.
            zeile->insert(zeile->begin() + 1, u" "_s);
            step([&] { Uebersicht::zeigeNeuen(*kategonr, screen.cboKatego->currentText(), *zeile); });
            step([&] { Uebersicht::markiere(*kategonr, CLng(zeile->front())); });
        }
        screen.KontaktAnzeigeLoeschen();
    });
}

void UpdateKontakt() { aendere(u"UpdateKontakt"_s, false); }

void UpdateSQLKontakt() { aendere(u"UpdateSQLKontakt"_s, true); }

void LoescheKontakt() {
    withErrorTail(modul, u"LoescheKontakt"_s, [](ErrorTail& step) {
        const Kontakt& screen = the<Kontakt>();
        const qint32 knr = nummerDerMaske(step, screen);
        const qint32 kategonr = ErmittleKategoNr(screen.cboKatego->currentText());
        const auto dazu = [&](const auto&) {
            return Datensatz::schreibe(step, u"Mitglied"_s, [&](Recordset& mitglied) {
                return loescheMitglied(step, mitglied, knr, false);
            });
        };
        if (Datensatz::loesche(step, u"Kontakt"_s, knr, dazu))
            step([&] { Uebersicht::entferneKontakt(kategonr, screen.cboKatego->currentText(), knr); });
        unload<Kontakt>();
    });
}

void ReinitialisiereJB() {
    withErrorTail(modul, u"ReinitialisiereJB"_s, [](ErrorTail& step) {
        liesSatz(
            step, [] { return u"SELECT * FROM Mitglied"_s; },
            [&](Recordset& mitglied) {
                step([&] { mitglied.MoveFirst(); });
                step.forEachRow(mitglied, [&] {
                    step([&] { mitglied.Edit(); });
                    step([&] { mitglied.Collect(u"Bezahlt"_s, false); });
                    step([&] { mitglied.Update(); });
                });
            });
    });
}

} // namespace modKontakt
