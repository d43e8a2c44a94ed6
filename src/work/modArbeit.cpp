#include "modArbeit.h"

#include "Arbeit.h"
#include "Clock.h"
#include "Conversions.h"
#include "Datensatz.h"
#include "Eingaben.h"
#include "Feldwerte.h"
#include "Format.h"
#include "MitglList.h"
#include "MsgBox.h"
#include "Rahmen.h"
#include "Screens.h"
#include "Session.h"
#include "Stunden.h"
#include "SuchKont.h"
#include "Zugriff.h"

#include <array>

using namespace Qt::StringLiterals;

namespace modArbeit {

namespace {

const QString modul = u"modArbeit"_s;

/// Sets the fields that new and changed bookings have in common, in the order in which they are written.
void schreibeFelder(ErrorTail& step, Recordset& arbeit, const Arbeit& screen) {
    step([&] { arbeit.Collect(u"jahr"_s, CLng(screen.cboArbJahr->currentText())); });
    step([&] { arbeit.Collect(u"Datum"_s, screen.pvDate->date()); });
    step([&] { arbeit.Collect(u"ArbStd"_s, CDbl(screen.txtArbStd->text())); });
    step([&] { arbeit.Collect(u"Notiz"_s, screen.txtArbNotiz->Text()); });
}

/// The fields that a booking's grid row shows.
QStringList felderDerZeile() { return {u"ArbNr"_s, u"knr"_s, u"ArbStd"_s, u"Datum"_s}; }

void haengeAn(ErrorTail& step, std::vector<Value> zeile, const Arbeit& screen) {
    step([&] { zeile[2] = Format(zeile[2], stundenMuster()); });
    step([&] { screen.tblArbStd->appendRow(zeile); });
    screen.tblArbStd->markRow(screen.tblArbStd->rowCount());
}

/// Shows a changed booking, with the hours as typed until the next load. The booking has no row if the screen
/// has changed to another year or member since it was opened.
void zeigeGeaenderten(ErrorTail& step, const std::vector<Value>& zeile, const Arbeit& screen) {
    const int row = screen.tblArbStd->rowOf(screen.lblArbNr->text());
    const auto mitglied = [&] { return CLng(zeile[1]) == CLng(screen.lblKNr->text()); };
    if (row >= 0) {
        step([&] { screen.tblArbStd->setCell(row, 2, screen.txtArbStd->text()); });
        step([&] { screen.tblArbStd->setCell(row, 3, screen.pvDate->date()); });
        screen.tblArbStd->markRow(row);
    } else if (step.test(mitglied)) {
        haengeAn(step, zeile, screen);
    }
}

/// A stored booking may have no date: it opens with the empty one.
Date datumOderLeer(const Value& datum) { return datum.isNull() ? Date() : CDate(datum); }

void zeigeNeueSumme(ErrorTail& step) {
    step([] { zeigeStunden(&ErmittleStunden); });
    step([] { zeigeSaldo(); });
}

} // namespace

bool ArbeitsZugriff_Erlaubt() { return zugriffErlaubt(modul, u"ArbeitsZugriff_Erlaubt"_s, u"Arbeit"_s); }

void SpeicherStunden() {
    withErrorTail(modul, u"SpeicherStunden"_s, [](ErrorTail& step) {
        const Arbeit& screen = the<Arbeit>();
        const auto felder = [&](Recordset& arbeit) {
            step([&] { arbeit.Collect(u"knr"_s, CLng(screen.lblKNr->text())); });
            schreibeFelder(step, arbeit, screen);
        };
        if (const auto zeile = Datensatz::speichere(step, u"Arbeit"_s, felder, felderDerZeile()))
            haengeAn(step, *zeile, screen);
        zeigeNeueSumme(step);
        LeereArbEingabe();
        screen.pvDate->setFocus();
    });
}

void UpdateStunden(int /*row*/) {
    withErrorTail(modul, u"UpdateStunden"_s, [](ErrorTail& step) {
        const Arbeit& screen = the<Arbeit>();
        const auto felder = [&](Recordset& arbeit) { schreibeFelder(step, arbeit, screen); };
        if (const auto zeile =
                Datensatz::aendere(step, u"Arbeit"_s, screen.lblArbNr->text(), felder, felderDerZeile()))
            zeigeGeaenderten(step, *zeile, screen);
        zeigeNeueSumme(step);
        LeereArbEingabe();
        screen.pvDate->setFocus();
    });
}

void LoescheStunden(int /*row*/) {
    withErrorTail(modul, u"LoescheStunden"_s, [](ErrorTail& step) {
        const Arbeit& screen = the<Arbeit>();
        if (Datensatz::loesche(step, u"Arbeit"_s, screen.lblArbNr->text())) {
            const int row = screen.tblArbStd->rowOf(screen.lblArbNr->text());
            if (row >= 0) step([&] { screen.tblArbStd->removeRow(row); });
            zeigeNeueSumme(step);
        }
        LeereArbEingabe();
        screen.pvDate->setFocus();
    });
}

void loadArbeitsVorgang(int row) {
    withErrorTail(modul, u"loadArbeitsVorgang"_s, [row](ErrorTail& step) {
        const Arbeit& screen = the<Arbeit>();
        const auto select = [&] {
            return u"SELECT ArbNr, Datum, ArbStd, Notiz FROM Arbeit WHERE ArbNr = "_s +
                   screen.tblArbStd->cellText(row, 0);
        };
        const auto zeige = [&](const Recordset& arbeit) {
            // A booking that failed halfway may have no hours: they are shown as an empty text.
            const auto text = [&](const QString& field) { return Format(arbeit.Collect(field), QString()); };
            step([&] { screen.lblArbNr->setText(text(u"ArbNr"_s)); });
            step([&] { screen.pvDate->setDate(datumOderLeer(arbeit.Collect(u"Datum"_s))); });
            step([&] { screen.txtArbNotiz->setText(text(u"Notiz"_s)); });
            step([&] { screen.txtArbStd->setText(text(u"ArbStd"_s)); });
        };
        liesSatz(step, select, zeige, &modRun::MeldeNichtVorhanden);
    });
}

void LeereArbEingabe() {
    const Arbeit& screen = the<Arbeit>();
    screen.lblArbNr->setText(QString());
    screen.pvDate->setDate(Date::fromQDate(today()));
    screen.txtArbNotiz->setText(QString());
    screen.txtArbStd->setText(QString());
}

void LeereOffenen() {
    if (!the<Arbeit>().lblArbNr->text().isEmpty()) LeereArbEingabe();
}

void LeereArbAnzeige() {
    const Arbeit& screen = the<Arbeit>();
    LeereArbEingabe();
    screen.tblArbStd->clearRows();
    for (ValueLabel* label : {screen.lblVName, screen.lblNName, screen.lblKNr, screen.lblGesStd,
                              screen.lblPflStd, screen.lblErgStd})
        label->setText(QString());
    screen.cmdMList->setEnabled(false);
}

bool PruefeArbEingabe() {
    const Arbeit& screen = the<Arbeit>();
    // An unreadable date would be booked as a different one.
    return modRun::fehlerfrei(modRun::erstesLeere({{screen.cmdSuch, screen.lblKNr->text().isEmpty()},
                                                   {screen.pvDate, !screen.pvDate->isReadable()},
                                                   screen.txtArbStd}));
}

// A member's whole year.

namespace {

/// A member as read from a row of a list.
struct Mitglied {
    QString knr;
    QString nachname;
    QString vorname;
    QString titel; ///< the name in the screen's caption
};

/// False, after a message box, if the number is no member's or the member is exempt.
bool schuldetStunden(ErrorTail& step, const QString& knr) {
    Recordset mitglied;
    step([&] { mitglied = oeffneTabelle(u"Mitglied"_s); });
    const bool gefunden = Datensatz::finde(step, mitglied, knr);
    const bool befreit = gefunden && step.test([&] { return mitglied.Collect(u"Befreit"_s) == Value(true); });
    if (!gefunden) modRun::MeldeNichtVorhanden();
    if (befreit)
        MsgBox(u"Mitglied ist von Arb.-Std. befreit ! Übernahme ins Arbeitscontrolling wurde "_s
               u"abgebrochen !\r\n\r\nUm eine Stundenverwaltung zu ermöglichen, müssen Sie erst den Status "_s
               u"auf - nicht Befreit - setzen.\r\n\r\nNähere Angaben dazu enthält die Online - Hilfe !"_s,
               vbInformation);
    step([&] { mitglied.Close(); });
    return gefunden && !befreit;
}

void zeigeMitglied(ErrorTail& step, const Mitglied& mitglied) {
    Arbeit& screen = the<Arbeit>();
    // An open booking belongs to the member shown before. Saving must not change it under the new one.
    LeereOffenen();
    screen.giveUpRecord();
    screen.lblKNr->setText(mitglied.knr);
    screen.lblVName->setText(mitglied.vorname);
    screen.lblNName->setText(mitglied.nachname);
    screen.setWindowTitle(u"Arbeitscontrolling - "_s + mitglied.titel + u" -"_s);
    step([] { zeigeStunden(&loadTblArbeit); });
    step([] { zeigePflichtStd(); });
    step([] { zeigeSaldo(); });
    screen.pvDate->setFocus();
}

/// The first columns of a row of a list. They are empty after an error.
std::array<QString, 5> liesZeile(ErrorTail& step, const DataTable* grid, int row) {
    std::array<QString, 5> zeile;
    int column = 0;
    step([&] {
        for (QString& zelle : zeile) zelle = grid->cellText(row, column++);
    });
    return zeile;
}

} // namespace

void UebernehmeKontakt(int row) {
    withErrorTail(modul, u"UebernehmeKontakt"_s, [row](ErrorTail& step) {
        const auto [knr, kategorie, firma, nachname, vorname] = liesZeile(step, the<SuchKont>().tblSuch, row);
        if (schuldetStunden(step, knr))
            zeigeMitglied(step, {knr, nachname, vorname, vorname + u' ' + nachname});
    });
}

void mnuArbContr_Click() {
    withErrorTail(modul, u"mnuArbContr_Click"_s, [](ErrorTail& step) {
        const MitglList& liste = the<MitglList>();
        const auto [knr, nachname, vorname, strasse, plz] = liesZeile(step, liste.tblMList, liste.gridRow());
        if (!schuldetStunden(step, knr)) return;
        // From the member list the caption shows street and first name. The labels show the right name.
        zeigeMitglied(step, {knr, nachname, vorname, strasse + u' ' + vorname});
        Arbeit& screen = the<Arbeit>();
        screen.cmdMList->setEnabled(true);
        screen.erwarteMitglied();
        rahmen()->zeigeBereich(u"Arbeit"_s);
        screen.pvDate->setFocus();
    });
}

double loadTblArbeit(qint32 knr, qint32 jahr) {
    withErrorTail(modul, u"loadTblArbeit"_s, [=](ErrorTail& step) {
        DataTable* grid = the<Arbeit>().tblArbStd;
        Recordset liste;
        step([&] {
            liste = oeffneAbfrage(u"SELECT ArbNr, KNr, ArbStd, Datum FROM Arbeit WHERE KNr = "_s +
                                  QString::number(knr) + u" AND Jahr = "_s + QString::number(jahr));
        });
        step([&] { grid->clearRows(); });
        std::vector<Recordset::Field> felder;
        step([&] { felder = liste.Fields(); });
        step.forEachRow(liste, [&] {
            std::array<Value, 4> zeile;
            modRun::leseZellen(step, felder, zeile);
            step([&] { zeile[2] = Format(zeile[2], stundenMuster()); });
            step([&] { grid->appendRow(zeile); });
        });
        step([&] { liste.Close(); });
    });
    return ErmittleStunden(knr, jahr);
}

void zeigeStunden(double (*ermittle)(qint32 knr, qint32 jahr)) {
    const Arbeit& screen = the<Arbeit>();
    const double stunden = ermittle(CLng(screen.lblKNr->text()), CLng(screen.cboArbJahr->currentText()));
    screen.lblGesStd->setText(Format(stunden, stundenMuster()));
}

void zeigePflichtStd() { the<Arbeit>().lblPflStd->setText(Format(session().PflichtStd, stundenMuster())); }

void zeigeSaldo() {
    const Arbeit& screen = the<Arbeit>();
    const double saldo = BerechneSaldo(CDbl(screen.lblGesStd->text()), CDbl(screen.lblPflStd->text()));
    screen.lblErgStd->setText(Format(saldo, stundenMuster()));
}

} // namespace modArbeit
