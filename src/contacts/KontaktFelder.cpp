#include "KontaktFelder.h"

#include "Conversions.h"
#include "Feldwerte.h"
#include "Kontakt.h"
#include "Namen.h"
#include "modKatego.h"
#include "modKontakt.h"

using namespace Qt::StringLiterals;

namespace KontaktFelder {

namespace {

/// A text field of the table and its input.
struct Textfeld {
    const char16_t* feld;
    TextBox* const Kontakt::*box;
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
void schreibeTexte(ErrorTail& step, Recordset& satz, const Kontakt& screen, const Textfeld (&felder)[count]) {
    for (const Textfeld& feld : felder)
        step([&] { satz.Collect(QString::fromUtf16(feld.feld), (screen.*feld.box)->text()); });
}

template<std::size_t count>
void zeigeTexte(ErrorTail& step, const Recordset& satz, const Kontakt& screen,
                const Textfeld (&felder)[count]) {
    for (const Textfeld& feld : felder)
        step([&] {
            (screen.*feld.box)->setText(modRun::textOderLeer(satz.Fields(QString::fromUtf16(feld.feld))));
        });
}

void waehle(const Recordset::Field& feld, QRadioButton* ja, QRadioButton* nein) {
    (feld.Value() == Value(true) ? ja : nein)->setChecked(true);
}

} // namespace

bool istMitglied(const Kontakt& screen) {
    return modKatego::istSystemkategorie(screen.cboKatego->currentText());
}

void schreibeKontakt(ErrorTail& step, Recordset& kontakt, const Kontakt& screen) {
    schreibeTexte(step, kontakt, screen, person);
    step([&] { kontakt.Collect(u"GebDatum"_s, modRun::DatumAusText(screen.txtGebDat)); });
    step([&] { kontakt.Collect(u"Bankeinzug"_s, modRun::WertAusCheckBox(screen.chkEinzug)); });
    schreibeTexte(step, kontakt, screen, bank);
    step([&] { kontakt.Collect(u"Notiz"_s, screen.txtNotiz->Text()); });
}

void schreibeMitglied(ErrorTail& step, Recordset& mitglied, const Kontakt& screen) {
    step([&] { mitglied.Collect(u"Geschlecht"_s, modRun::WertAusOption(screen.optMann)); });
    step([&] { mitglied.Collect(u"Befreit"_s, modRun::WertAusOption(screen.optBefreit)); });
    step([&] { mitglied.Collect(u"Bezahlt"_s, modRun::WertAusOption(screen.optBezahlt)); });
    step([&] { mitglied.Collect(u"Eintritt"_s, modRun::DatumAusText(screen.txtEintritt)); });
    step([&] { mitglied.Collect(u"Austritt"_s, modRun::DatumAusText(screen.txtAustritt)); });
    step([&] { mitglied.Collect(u"JG"_s, modRun::WertAusCheckBox(screen.chkJG)); });
}

void zeigeKontakt(ErrorTail& step, const Recordset& kontakt, Kontakt& screen) {
    step([&] { screen.lblKNr->setText(CStr(kontakt.Collect(u"knr"_s))); });
    // Setting the category also enables or disables the fields of a member.
    step([&] { screen.cboKatego->setText(ErmittleKategoName(CLng(kontakt.Collect(u"kategonr"_s)))); });
    zeigeTexte(step, kontakt, screen, person);
    step([&] { screen.txtGebDat->setText(modRun::TextAusDatum(kontakt.Fields(u"GebDatum"_s))); });
    step(
        [&] { screen.chkEinzug->setChecked(modRun::CheckBoxAusWert(kontakt.Fields(u"Bankeinzug"_s)) != 0); });
    zeigeTexte(step, kontakt, screen, bank);
    step([&] { screen.txtNotiz->setText(modRun::textOderLeer(kontakt.Fields(u"Notiz"_s))); });
}

void zeigeMitglied(ErrorTail& step, const Recordset& mitglied, Kontakt& screen) {
    step([&] { waehle(mitglied.Fields(u"Geschlecht"_s), screen.optMann, screen.optFrau); });
    step([&] { waehle(mitglied.Fields(u"Befreit"_s), screen.optBefreit, screen.optNBefreit); });
    step([&] { waehle(mitglied.Fields(u"Bezahlt"_s), screen.optBezahlt, screen.optNBezahlt); });
    step([&] { screen.chkJG->setChecked(modRun::CheckBoxAusWert(mitglied.Fields(u"JG"_s)) != 0); });
    step([&] { screen.txtEintritt->setText(modRun::TextAusDatum(mitglied.Fields(u"Eintritt"_s))); });
    step([&] { screen.txtAustritt->setText(modRun::TextAusDatum(mitglied.Fields(u"Austritt"_s))); });
}

std::array<Value, 10> alsZeile(const Kontakt& screen) {
    return {screen.lblKNr->text(),     QString(),
            screen.txtFirma->text(),   screen.txtAnrede->text(),
            screen.txtNName->text(),   screen.txtVName->text(),
            screen.txtTelPriv->text(), screen.txtFax->text(),
            screen.txtGebDat->text(),  screen.txtEMail->text()};
}

} // namespace KontaktFelder
