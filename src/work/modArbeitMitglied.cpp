#include "Arbeit.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "DateBox.h"
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
#include "ValueLabel.h"
#include "modArbeit.h"

#include <QPushButton>
#include <array>
#include <optional>

// How a member comes into the ledger, and what his year comes to.

namespace modArbeit {

namespace {

const QString modul = u"modArbeit"_qs;

/// What a list tells of the member in one of its rows.
struct Mitglied {
    QString knr;
    QString nachname;
    QString vorname;
    QString titel; ///< his name in the caption of the screen
};

void meldeBefreit() {
    MsgBox(
        u"Mitglied ist von Arb.-Std. befreit ! Übernahme ins Arbeitscontrolling wurde abgebrochen !\r\n\r\n"_qs
        u"Um eine Stundenverwaltung zu ermöglichen, müssen Sie erst den Status auf - nicht Befreit - "_qs
        u"setzen.\r\n\r\nNähere Angaben dazu enthält die Online - Hilfe !"_qs,
        vbInformation);
}

/// False, after a box, for a number that is no member's and for a member who owes no hours.
bool schuldetStunden(ErrorTail& step, const QString& knr) {
    Recordset mitglied;
    bool befreit = false;
    step([&] { mitglied = oeffneTabelle(u"Mitglied"_qs); });
    const bool gefunden = Datensatz::finde(step, mitglied, knr);
    if (!gefunden)
        modRun::MeldeNichtVorhanden();
    else if (step.test([&] { return mitglied.Collect(u"Befreit"_qs) == Value(true); }))
        befreit = true;
    if (befreit) meldeBefreit();
    step([&] { mitglied.Close(); });
    return gefunden && !befreit;
}

void zeigeMitglied(ErrorTail& step, const Mitglied& mitglied) {
    Arbeit& form = screen<Arbeit>();
    // A booking that stands open is the former member's: it must not be taken for the new one's.
    LeereOffenen();
    form.giveUpRecord();
    form.lblKNr->setText(mitglied.knr);
    form.lblVName->setText(mitglied.vorname);
    form.lblNName->setText(mitglied.nachname);
    form.setWindowTitle(u"Arbeitscontrolling - "_qs + mitglied.titel + u" -"_qs);
    step([&] {
        const double stunden = loadTblArbeit(CLng(form.lblKNr->text()), CLng(form.cboArbJahr->currentText()));
        form.lblGesStd->setText(Format(stunden, stundenMuster()));
    });
    step([] { zeigePflichtStd(); });
    step([] { zeigeSaldo(); });
    form.pvDate->setFocus();
}

} // namespace

void UebernehmeKontakt(int row) {
    withErrorTail(modul, u"UebernehmeKontakt"_qs, [row](ErrorTail& step) {
        const DataTable* grid = screen<SuchKont>().tblSuch;
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
    withErrorTail(modul, u"mnuArbContr_Click"_qs, [](ErrorTail& step) {
        const DataTable* grid = screen<MitglList>().tblMList;
        std::array<QString, 4> zeile;
        step([&] {
            for (int column = 0; column < 4; ++column)
                zeile[static_cast<std::size_t>(column)] =
                    grid->cellText(screen<MitglList>().gridRow(), column);
        });
        const auto& [knr, nachname, vorname, strasse] = zeile;
        if (!schuldetStunden(step, knr)) return;
        // On this way the caption reads street and first name; the labels below it read correctly.
        zeigeMitglied(step, {knr, nachname, vorname, strasse + u' ' + vorname});
        Arbeit& form = screen<Arbeit>();
        form.cmdMList->setEnabled(true);
        form.erwarteMitglied();
        rahmen()->zeigeBereich(u"Arbeit"_qs);
        form.pvDate->setFocus();
    });
}

double loadTblArbeit(qint32 knr, qint32 jahr) {
    withErrorTail(modul, u"loadTblArbeit"_qs, [=](ErrorTail& step) {
        DataTable* grid = screen<Arbeit>().tblArbStd;
        Recordset liste;
        step([&] {
            liste = oeffneAbfrage(u"SELECT ArbNr, KNr, ArbStd, Datum FROM Arbeit WHERE KNr = "_qs +
                                  QString::number(knr) + u" AND Jahr = "_qs + QString::number(jahr));
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

void zeigePflichtStd() { screen<Arbeit>().lblPflStd->setText(Format(session().PflichtStd, stundenMuster())); }

void zeigeSaldo() {
    const Arbeit& form = screen<Arbeit>();
    const double saldo = BerechneSaldo(CDbl(form.lblGesStd->text()), CDbl(form.lblPflStd->text()));
    form.lblErgStd->setText(Format(saldo, stundenMuster()));
}

} // namespace modArbeit
