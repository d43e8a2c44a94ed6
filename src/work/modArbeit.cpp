#include "modArbeit.h"

#include "Arbeit.h"
#include "Clock.h"
#include "Conversions.h"
#include "Datenbank.h"
#include "Datensatz.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "Format.h"
#include "Meldungen.h"
#include "Recordset.h"
#include "Screens.h"
#include "Stunden.h"
#include "Zugriff.h"

using namespace Qt::StringLiterals;

// Reads, writes and deletes single bookings. A member's whole year is in modArbeitMitglied.cpp.

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

/// Reads the fields that a booking's grid row shows.
Datensatz::Danach lies(ErrorTail& step, std::vector<Value>& zeile) {
    return Datensatz::lies(step, zeile, {u"ArbNr"_s, u"knr"_s, u"ArbStd"_s, u"Datum"_s});
}

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

void zeigeNeueSumme(ErrorTail& step, const Arbeit& screen) {
    step([&] {
        const double stunden =
            ErmittleStunden(CLng(screen.lblKNr->text()), CLng(screen.cboArbJahr->currentText()));
        screen.lblGesStd->setText(Format(stunden, stundenMuster()));
    });
    step([] { zeigeSaldo(); });
}

} // namespace

bool ArbeitsZugriff_Erlaubt() { return zugriffErlaubt(modul, u"ArbeitsZugriff_Erlaubt"_s, u"Arbeit"_s); }

void SpeicherStunden() {
    withErrorTail(modul, u"SpeicherStunden"_s, [](ErrorTail& step) {
        const Arbeit& screen = the<Arbeit>();
        std::vector<Value> zeile;
        const auto felder = [&](Recordset& arbeit) {
            step([&] { arbeit.Collect(u"knr"_s, CLng(screen.lblKNr->text())); });
            schreibeFelder(step, arbeit, screen);
        };
        if (Datensatz::speichere(step, u"Arbeit"_s, felder, lies(step, zeile))) haengeAn(step, zeile, screen);
        zeigeNeueSumme(step, screen);
        LeereArbEingabe();
        screen.pvDate->setFocus();
    });
}

void UpdateStunden(int /*row*/) {
    withErrorTail(modul, u"UpdateStunden"_s, [](ErrorTail& step) {
        const Arbeit& screen = the<Arbeit>();
        std::vector<Value> zeile;
        const auto felder = [&](Recordset& arbeit) { schreibeFelder(step, arbeit, screen); };
        if (Datensatz::aendere(step, u"Arbeit"_s, screen.lblArbNr->text(), felder, lies(step, zeile)))
            zeigeGeaenderten(step, zeile, screen);
        zeigeNeueSumme(step, screen);
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
            zeigeNeueSumme(step, screen);
        }
        LeereArbEingabe();
        screen.pvDate->setFocus();
    });
}

void loadArbeitsVorgang(int row) {
    withErrorTail(modul, u"loadArbeitsVorgang"_s, [row](ErrorTail& step) {
        const Arbeit& screen = the<Arbeit>();
        Recordset arbeit;
        step([&] {
            arbeit = oeffneAbfrage(u"SELECT ArbNr, Datum, ArbStd, Notiz FROM Arbeit WHERE ArbNr = "_s +
                                   screen.tblArbStd->cellText(row, 0));
        });
        // A booking that failed halfway may have no hours: they are shown as an empty text.
        const auto text = [&](const QString& field) { return Format(arbeit.Collect(field), QString()); };
        if (step.test([&] { return arbeit.RecordCount() == 1; })) {
            step([&] { screen.lblArbNr->setText(text(u"ArbNr"_s)); });
            step([&] { screen.pvDate->setDate(datumOderLeer(arbeit.Collect(u"Datum"_s))); });
            step([&] { screen.txtArbNotiz->setText(text(u"Notiz"_s)); });
            step([&] { screen.txtArbStd->setText(text(u"ArbStd"_s)); });
        } else {
            modRun::MeldeNichtVorhanden();
        }
        step([&] { arbeit.Close(); });
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

} // namespace modArbeit
