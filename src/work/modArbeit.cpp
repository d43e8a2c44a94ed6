#include "modArbeit.h"

#include "Arbeit.h"
#include "Clock.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "DateBox.h"
#include "ErrorTail.h"
#include "Format.h"
#include "MemoBox.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "TextBox.h"
#include "ValueLabel.h"
#include "Zugriff.h"
#include "modRun.h"

#include <QPushButton>

// The bookings: reading, writing and deleting single ones. What belongs to a member as a whole is in
// modArbeitMitglied.cpp.

namespace modArbeit {

namespace {

const QString modul = u"modArbeit"_qs;

/// The fields of a booking that a change writes as well, in the order in which they are written.
void schreibeFelder(ErrorTail& step, Recordset& arbeit, const Arbeit& form) {
    step([&] { arbeit.Collect(u"jahr"_qs, CLng(form.cboArbJahr->Text())); });
    step([&] { arbeit.Collect(u"Datum"_qs, form.pvDate->date()); });
    step([&] { arbeit.Collect(u"ArbStd"_qs, CDbl(form.txtArbStd->Text())); });
    step([&] { arbeit.Collect(u"Notiz"_qs, form.txtArbNotiz->Text()); });
}

/// Seeks the booking whose number the form shows.
bool findeOffenen(ErrorTail& step, Recordset& arbeit, const Arbeit& form) {
    return modRun::findeIn(step, arbeit, u"Arbeit"_qs, form.lblArbNr->Caption());
}

/// The current record as a new row of the grid.
void haengeAn(ErrorTail& step, const Recordset& arbeit, const Arbeit& form) {
    std::vector<Value> zeile(4);
    step([&] { zeile[0] = arbeit.Collect(u"ArbNr"_qs); });
    step([&] { zeile[1] = arbeit.Collect(u"knr"_qs); });
    step([&] { zeile[2] = Format(arbeit.Collect(u"ArbStd"_qs), stundenMuster()); });
    step([&] { zeile[3] = arbeit.Collect(u"Datum"_qs); });
    step([&] { form.tblArbStd->appendRow(zeile); });
}

/// Another year or another member may have come to the screen since the row was opened: then another booking
/// stands there, or none.
bool zeigtOffenen(const Arbeit& form, int row) {
    return row < form.tblArbStd->rowCount() && form.tblArbStd->cellText(row, 0) == form.lblArbNr->Caption();
}

/// The hours stand as they were typed until the next load.
void zeigeGeaenderten(ErrorTail& step, const Recordset& arbeit, const Arbeit& form, int row) {
    const auto mitglied = [&] { return CLng(arbeit.Collect(u"knr"_qs)) == CLng(form.lblKNr->Caption()); };
    if (zeigtOffenen(form, row)) {
        step([&] { form.tblArbStd->setCell(row, 2, form.txtArbStd->Text()); });
        step([&] { form.tblArbStd->setCell(row, 3, form.pvDate->date()); });
    } else if (step.test(mitglied)) {
        haengeAn(step, arbeit, form);
    }
}

/// A booking that came without a date opens with the empty one.
Date datumOderLeer(const Value& datum) { return datum.isNull() ? Date() : CDate(datum); }

void zeigeNeueSumme(ErrorTail& step, const Arbeit& form) {
    step([&] {
        const double stunden = ErmittleStunden(CLng(form.lblKNr->Caption()), CLng(form.cboArbJahr->Text()));
        form.lblGesStd->setCaption(Format(stunden, stundenMuster()));
    });
    step([] { zeigeSaldo(); });
}

} // namespace

bool ArbeitsZugriff_Erlaubt() { return zugriffErlaubt(modul, u"ArbeitsZugriff_Erlaubt"_qs, u"Arbeit"_qs); }

void SpeicherStunden() {
    withErrorTail(modul, u"SpeicherStunden"_qs, [](ErrorTail& step) {
        const Arbeit& form = screen<Arbeit>();
        Recordset arbeit;
        step([&] { arbeit = oeffneTabelle(u"Arbeit"_qs); });
        step([&] { arbeit.AddNew(); });
        step([&] { arbeit.Collect(u"knr"_qs, CLng(form.lblKNr->Caption())); });
        schreibeFelder(step, arbeit, form);
        if (modRun::speichereNeuen(step, arbeit)) haengeAn(step, arbeit, form);
        zeigeNeueSumme(step, form);
        LeereArbEingabe();
        form.pvDate->setFocus();
        step([&] { arbeit.Close(); });
    });
}

void UpdateStunden(int row) {
    withErrorTail(modul, u"UpdateStunden"_qs, [row](ErrorTail& step) {
        const Arbeit& form = screen<Arbeit>();
        Recordset arbeit;
        if (findeOffenen(step, arbeit, form)) {
            step([&] { arbeit.Edit(); });
            schreibeFelder(step, arbeit, form);
            step([&] { arbeit.Update(); });
            zeigeGeaenderten(step, arbeit, form, row);
        } else {
            modRun::MeldeNichtVorhanden();
        }
        zeigeNeueSumme(step, form);
        LeereArbEingabe();
        form.pvDate->setFocus();
        step([&] { arbeit.Close(); });
    });
}

void LoescheStunden(int row) {
    withErrorTail(modul, u"LoescheStunden"_qs, [row](ErrorTail& step) {
        const Arbeit& form = screen<Arbeit>();
        Recordset arbeit;
        if (findeOffenen(step, arbeit, form)) {
            step([&] { arbeit.Delete(); });
            if (zeigtOffenen(form, row)) step([&] { form.tblArbStd->removeRow(row); });
            zeigeNeueSumme(step, form);
        } else {
            modRun::MeldeNichtVorhanden();
        }
        LeereArbEingabe();
        form.pvDate->setFocus();
        step([&] { arbeit.Close(); });
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
            step([&] { form.lblArbNr->setCaption(text(u"ArbNr"_qs)); });
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
    form.lblArbNr->setCaption(QString());
    form.pvDate->setDate(Date::fromQDate(today()));
    form.txtArbNotiz->setText(QString());
    form.txtArbStd->setText(QString());
}

void LeereOffenen() {
    if (!screen<Arbeit>().lblArbNr->Caption().isEmpty()) LeereArbEingabe();
}

void LeereArbAnzeige() {
    const Arbeit& form = screen<Arbeit>();
    LeereArbEingabe();
    form.tblArbStd->clearRows();
    for (ValueLabel* label :
         {form.lblVName, form.lblNName, form.lblKNr, form.lblGesStd, form.lblPflStd, form.lblErgStd})
        label->setCaption(QString());
    form.cmdMList->setEnabled(false);
}

bool PruefeArbEingabe() {
    const Arbeit& form = screen<Arbeit>();
    // A date that nobody can read would be booked as another one.
    if (!form.txtArbStd->Text().isEmpty() && !form.lblKNr->Caption().isEmpty() && form.pvDate->isReadable())
        return true;
    modRun::MeldeEingabeFehler();
    return false;
}

} // namespace modArbeit
