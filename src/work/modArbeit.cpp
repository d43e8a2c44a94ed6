#include "modArbeit.h"

#include "Arbeit.h"
#include "Clock.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "DateBox.h"
#include "Datenbank.h"
#include "Datensatz.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "Format.h"
#include "Meldungen.h"
#include "MemoBox.h"
#include "Recordset.h"
#include "Screens.h"
#include "Stunden.h"
#include "TextBox.h"
#include "ValueLabel.h"
#include "Zugriff.h"

#include <QPushButton>

// The bookings: reading, writing and deleting single ones. What belongs to a member as a whole is in
// modArbeitMitglied.cpp.

namespace modArbeit {

namespace {

const QString modul = u"modArbeit"_qs;

/// The fields of a booking that a change writes as well, in the order in which they are written.
void schreibeFelder(ErrorTail& step, Recordset& arbeit, const Arbeit& form) {
    step([&] { arbeit.Collect(u"jahr"_qs, CLng(form.cboArbJahr->currentText())); });
    step([&] { arbeit.Collect(u"Datum"_qs, form.pvDate->date()); });
    step([&] { arbeit.Collect(u"ArbStd"_qs, CDbl(form.txtArbStd->text())); });
    step([&] { arbeit.Collect(u"Notiz"_qs, form.txtArbNotiz->Text()); });
}

/// The fields of a booking that its row in the grid is made from.
Datensatz::Danach lies(ErrorTail& step, std::vector<Value>& zeile) {
    return Datensatz::lies(step, zeile, {u"ArbNr"_qs, u"knr"_qs, u"ArbStd"_qs, u"Datum"_qs});
}

void haengeAn(ErrorTail& step, std::vector<Value> zeile, const Arbeit& form) {
    step([&] { zeile[2] = Format(zeile[2], stundenMuster()); });
    step([&] { form.tblArbStd->appendRow(zeile); });
    form.tblArbStd->markRow(form.tblArbStd->rowCount());
}

/// The hours stand as they were typed until the next load. Another year or another member may have come to
/// the screen since the booking was opened: then it has no row here.
void zeigeGeaenderten(ErrorTail& step, const std::vector<Value>& zeile, const Arbeit& form) {
    const int row = form.tblArbStd->rowOf(form.lblArbNr->text());
    const auto mitglied = [&] { return CLng(zeile[1]) == CLng(form.lblKNr->text()); };
    if (row >= 0) {
        step([&] { form.tblArbStd->setCell(row, 2, form.txtArbStd->text()); });
        step([&] { form.tblArbStd->setCell(row, 3, form.pvDate->date()); });
        form.tblArbStd->markRow(row);
    } else if (step.test(mitglied)) {
        haengeAn(step, zeile, form);
    }
}

/// A booking that came without a date opens with the empty one.
Date datumOderLeer(const Value& datum) { return datum.isNull() ? Date() : CDate(datum); }

void zeigeNeueSumme(ErrorTail& step, const Arbeit& form) {
    step([&] {
        const double stunden =
            ErmittleStunden(CLng(form.lblKNr->text()), CLng(form.cboArbJahr->currentText()));
        form.lblGesStd->setText(Format(stunden, stundenMuster()));
    });
    step([] { zeigeSaldo(); });
}

} // namespace

bool ArbeitsZugriff_Erlaubt() { return zugriffErlaubt(modul, u"ArbeitsZugriff_Erlaubt"_qs, u"Arbeit"_qs); }

void SpeicherStunden() {
    withErrorTail(modul, u"SpeicherStunden"_qs, [](ErrorTail& step) {
        const Arbeit& form = screen<Arbeit>();
        std::vector<Value> zeile;
        const auto felder = [&](Recordset& arbeit) {
            step([&] { arbeit.Collect(u"knr"_qs, CLng(form.lblKNr->text())); });
            schreibeFelder(step, arbeit, form);
        };
        if (Datensatz::speichere(step, u"Arbeit"_qs, felder, lies(step, zeile))) haengeAn(step, zeile, form);
        zeigeNeueSumme(step, form);
        LeereArbEingabe();
        form.pvDate->setFocus();
    });
}

void UpdateStunden(int /*row*/) {
    withErrorTail(modul, u"UpdateStunden"_qs, [](ErrorTail& step) {
        const Arbeit& form = screen<Arbeit>();
        std::vector<Value> zeile;
        const auto felder = [&](Recordset& arbeit) { schreibeFelder(step, arbeit, form); };
        if (Datensatz::aendere(step, u"Arbeit"_qs, form.lblArbNr->text(), felder, lies(step, zeile)))
            zeigeGeaenderten(step, zeile, form);
        zeigeNeueSumme(step, form);
        LeereArbEingabe();
        form.pvDate->setFocus();
    });
}

void LoescheStunden(int /*row*/) {
    withErrorTail(modul, u"LoescheStunden"_qs, [](ErrorTail& step) {
        const Arbeit& form = screen<Arbeit>();
        if (Datensatz::loesche(step, u"Arbeit"_qs, form.lblArbNr->text())) {
            const int row = form.tblArbStd->rowOf(form.lblArbNr->text());
            if (row >= 0) step([&] { form.tblArbStd->removeRow(row); });
            zeigeNeueSumme(step, form);
        }
        LeereArbEingabe();
        form.pvDate->setFocus();
    });
}

void loadArbeitsVorgang(int row, int /*column*/) {
    withErrorTail(modul, u"loadArbeitsVorgang"_qs, [row](ErrorTail& step) {
        const Arbeit& form = screen<Arbeit>();
        Recordset arbeit;
        step([&] {
            arbeit = oeffneAbfrage(u"SELECT ArbNr, Datum, ArbStd, Notiz FROM Arbeit WHERE ArbNr = "_qs +
                                   form.tblArbStd->cellText(row, 0));
        });
        // Hours that a failed booking never got stand as an empty text.
        const auto text = [&](const QString& field) { return Format(arbeit.Collect(field), QString()); };
        if (step.test([&] { return arbeit.RecordCount() == 1; })) {
            step([&] { form.lblArbNr->setText(text(u"ArbNr"_qs)); });
            step([&] { form.pvDate->setDate(datumOderLeer(arbeit.Collect(u"Datum"_qs))); });
            step([&] { form.txtArbNotiz->setText(text(u"Notiz"_qs)); });
            step([&] { form.txtArbStd->setText(text(u"ArbStd"_qs)); });
        } else {
            modRun::MeldeNichtVorhanden();
        }
        step([&] { arbeit.Close(); });
    });
}

void LeereArbEingabe() {
    const Arbeit& form = screen<Arbeit>();
    form.lblArbNr->setText(QString());
    form.pvDate->setDate(Date::fromQDate(today()));
    form.txtArbNotiz->setText(QString());
    form.txtArbStd->setText(QString());
}

void LeereOffenen() {
    if (!screen<Arbeit>().lblArbNr->text().isEmpty()) LeereArbEingabe();
}

void LeereArbAnzeige() {
    const Arbeit& form = screen<Arbeit>();
    LeereArbEingabe();
    form.tblArbStd->clearRows();
    for (ValueLabel* label :
         {form.lblVName, form.lblNName, form.lblKNr, form.lblGesStd, form.lblPflStd, form.lblErgStd})
        label->setText(QString());
    form.cmdMList->setEnabled(false);
}

bool PruefeArbEingabe() {
    const Arbeit& form = screen<Arbeit>();
    // A date that nobody can read would be booked as another one.
    return modRun::fehlerfrei(modRun::erstesLeere({{form.cmdSuch, form.lblKNr->text().isEmpty()},
                                                   {form.pvDate, !form.pvDate->isReadable()},
                                                   form.txtArbStd}));
}

} // namespace modArbeit
