#include "Arbeit.h"
#include "Conversions.h"
#include "Datenbank.h"
#include "Datensatz.h"
#include "ErrorTail.h"
#include "Feldwerte.h"
#include "Format.h"
#include "Meldungen.h"
#include "MitglList.h"
#include "MsgBox.h"
#include "Rahmen.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "Stunden.h"
#include "SuchKont.h"
#include "modArbeit.h"

#include <array>
#include <optional>

using namespace Qt::StringLiterals;

// Shows a member in the ledger, with the year's hours and balance.

namespace modArbeit {

namespace {

const QString modul = u"modArbeit"_s;

/// A member as read from a row of a list.
struct Mitglied {
    QString knr;
    QString nachname;
    QString vorname;
    QString titel; ///< the name in the screen's caption
};

void meldeBefreit() {
    MsgBox(
        u"Mitglied ist von Arb.-Std. befreit ! Übernahme ins Arbeitscontrolling wurde abgebrochen !\r\n\r\n"_s
        u"Um eine Stundenverwaltung zu ermöglichen, müssen Sie erst den Status auf - nicht Befreit - "_s
        u"setzen.\r\n\r\nNähere Angaben dazu enthält die Online - Hilfe !"_s,
        vbInformation);
}

/// False, after a message box, if the number is no member's or the member is exempt.
bool schuldetStunden(ErrorTail& step, const QString& knr) {
    Recordset mitglied;
    bool befreit = false;
    step([&] { mitglied = oeffneTabelle(u"Mitglied"_s); });
    const bool gefunden = Datensatz::finde(step, mitglied, knr);
    if (!gefunden)
        modRun::MeldeNichtVorhanden();
    else if (step.test([&] { return mitglied.Collect(u"Befreit"_s) == Value(true); }))
        befreit = true;
    if (befreit) meldeBefreit();
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
    step([&] {
        const double stunden =
            loadTblArbeit(CLng(screen.lblKNr->text()), CLng(screen.cboArbJahr->currentText()));
        screen.lblGesStd->setText(Format(stunden, stundenMuster()));
    });
    step([] { zeigePflichtStd(); });
    step([] { zeigeSaldo(); });
    screen.pvDate->setFocus();
}

} // namespace

void UebernehmeKontakt(int row) {
    withErrorTail(modul, u"UebernehmeKontakt"_s, [row](ErrorTail& step) {
        const DataTable* grid = the<SuchKont>().tblSuch;
        std::array<QString, 5> zeile;
        step([&] {
            for (int column = 0; column < 5; ++column)
                zeile[static_cast<std::size_t>(column)] = grid->cellText(row, column);
        });
        const auto& [knr, kategorie, firma, nachname, vorname] = zeile;
        if (schuldetStunden(step, knr))
            zeigeMitglied(step, {knr, nachname, vorname, vorname + u' ' + nachname});
    });
}

void mnuArbContr_Click() {
    withErrorTail(modul, u"mnuArbContr_Click"_s, [](ErrorTail& step) {
        const DataTable* grid = the<MitglList>().tblMList;
        std::array<QString, 4> zeile;
        step([&] {
            for (int column = 0; column < 4; ++column)
                zeile[static_cast<std::size_t>(column)] = grid->cellText(the<MitglList>().gridRow(), column);
        });
        const auto& [knr, nachname, vorname, strasse] = zeile;
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

void zeigePflichtStd() { the<Arbeit>().lblPflStd->setText(Format(session().PflichtStd, stundenMuster())); }

void zeigeSaldo() {
    const Arbeit& screen = the<Arbeit>();
    const double saldo = BerechneSaldo(CDbl(screen.lblGesStd->text()), CDbl(screen.lblPflStd->text()));
    screen.lblErgStd->setText(Format(saldo, stundenMuster()));
}

} // namespace modArbeit
