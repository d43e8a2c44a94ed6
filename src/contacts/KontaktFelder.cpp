#include "KontaktFelder.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "Feldwerte.h"
#include "Kontakt.h"
#include "MemoBox.h"
#include "Namen.h"
#include "TextBox.h"
#include "ValueLabel.h"
#include "modKatego.h"
#include "modKontakt.h"

#include <QCheckBox>
#include <QRadioButton>

namespace KontaktFelder {

namespace {

/// A text field of the table and its box.
struct Textfeld {
    const char16_t* feld;
    TextBox* Kontakt::*box;
};

constexpr Textfeld person[] = {
    {u"Anrede", &Kontakt::txtAnrede},   {u"Nachname", &Kontakt::txtNName}, {u"Vorname", &Kontakt::txtVName},
    {u"Strasse", &Kontakt::txtStrasse}, {u"PLZ", &Kontakt::txtPLZ},        {u"Ort", &Kontakt::txtOrt},
    {u"Tel1", &Kontakt::txtTelPriv},    {u"Tel2", &Kontakt::txtTelGesch},  {u"Mobil", &Kontakt::txtMobil},
    {u"Fax", &Kontakt::txtFax},         {u"EMail", &Kontakt::txtEMail},    {u"Firma", &Kontakt::txtFirma},
};

constexpr Textfeld bank[] = {
    {u"BLZ", &Kontakt::txtBLZ},
    {u"KreditInstitut", &Kontakt::txtKInst},
    {u"KontoNr", &Kontakt::txtKontoNr},
};

template<std::size_t count>
void schreibeTexte(ErrorTail& step, Recordset& satz, const Kontakt& form, const Textfeld (&felder)[count]) {
    for (const Textfeld& feld : felder)
        step([&] { satz.Collect(QString::fromUtf16(feld.feld), (form.*feld.box)->text()); });
}

template<std::size_t count>
void zeigeTexte(ErrorTail& step, const Recordset& satz, const Kontakt& form,
                const Textfeld (&felder)[count]) {
    for (const Textfeld& feld : felder)
        step([&] {
            (form.*feld.box)->setText(modRun::textOderLeer(satz.Fields(QString::fromUtf16(feld.feld))));
        });
}

/// Of a pair of options exactly one is chosen.
void waehle(const Recordset::Field& feld, QRadioButton* ja, QRadioButton* nein) {
    (feld.Value() == Value(true) ? ja : nein)->setChecked(true);
}

} // namespace

bool istMitglied(const Kontakt& form) { return modKatego::istSystemkategorie(form.cboKatego->currentText()); }

void schreibeKontakt(ErrorTail& step, Recordset& kontakt, const Kontakt& form) {
    schreibeTexte(step, kontakt, form, person);
    step([&] { kontakt.Collect(u"GebDatum"_qs, modRun::DatumAusText(form.txtGebDat)); });
    step([&] { kontakt.Collect(u"Bankeinzug"_qs, modRun::WertAusCheckBox(form.chkEinzug)); });
    schreibeTexte(step, kontakt, form, bank);
    step([&] { kontakt.Collect(u"Notiz"_qs, form.txtNotiz->Text()); });
}

void schreibeMitglied(ErrorTail& step, Recordset& mitglied, const Kontakt& form) {
    step([&] { mitglied.Collect(u"Geschlecht"_qs, modRun::WertAusOption(form.optMann)); });
    step([&] { mitglied.Collect(u"Befreit"_qs, modRun::WertAusOption(form.optBefreit)); });
    step([&] { mitglied.Collect(u"Bezahlt"_qs, modRun::WertAusOption(form.optBezahlt)); });
    step([&] { mitglied.Collect(u"Eintritt"_qs, modRun::DatumAusText(form.txtEintritt)); });
    step([&] { mitglied.Collect(u"Austritt"_qs, modRun::DatumAusText(form.txtAustritt)); });
    step([&] { mitglied.Collect(u"JG"_qs, modRun::WertAusCheckBox(form.chkJG)); });
}

void zeigeKontakt(ErrorTail& step, const Recordset& kontakt, Kontakt& form) {
    step([&] { form.lblKNr->setText(CStr(kontakt.Collect(u"knr"_qs))); });
    // Choosing the category opens or closes the fields of a member.
    step([&] { form.cboKatego->setText(ErmittleKategoName(CLng(kontakt.Collect(u"kategonr"_qs)))); });
    zeigeTexte(step, kontakt, form, person);
    step([&] { form.txtGebDat->setText(modRun::TextAusDatum(kontakt.Fields(u"GebDatum"_qs))); });
    step([&] { form.chkEinzug->setChecked(modRun::CheckBoxAusWert(kontakt.Fields(u"Bankeinzug"_qs)) != 0); });
    zeigeTexte(step, kontakt, form, bank);
    step([&] { form.txtNotiz->setText(modRun::textOderLeer(kontakt.Fields(u"Notiz"_qs))); });
}

void zeigeMitglied(ErrorTail& step, const Recordset& mitglied, Kontakt& form) {
    step([&] { waehle(mitglied.Fields(u"Geschlecht"_qs), form.optMann, form.optFrau); });
    step([&] { waehle(mitglied.Fields(u"Befreit"_qs), form.optBefreit, form.optNBefreit); });
    step([&] { waehle(mitglied.Fields(u"Bezahlt"_qs), form.optBezahlt, form.optNBezahlt); });
    step([&] { form.chkJG->setChecked(modRun::CheckBoxAusWert(mitglied.Fields(u"JG"_qs)) != 0); });
    step([&] { form.txtEintritt->setText(modRun::TextAusDatum(mitglied.Fields(u"Eintritt"_qs))); });
    step([&] { form.txtAustritt->setText(modRun::TextAusDatum(mitglied.Fields(u"Austritt"_qs))); });
}

std::array<Value, 10> alsZeile(const Kontakt& form) {
    return {form.lblKNr->text(),     QString(),
            form.txtFirma->text(),   form.txtAnrede->text(),
            form.txtNName->text(),   form.txtVName->text(),
            form.txtTelPriv->text(), form.txtFax->text(),
            form.txtGebDat->text(),  form.txtEMail->text()};
}

} // namespace KontaktFelder
