#include "modFangbuch.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "Datenbank.h"
#include "Datensatz.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "Fangbuch.h"
#include "Kalendernamen.h"
#include "Meldungen.h"
#include "MemoBox.h"
#include "Namen.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "TextBox.h"
#include "ValueLabel.h"
#include "Zugriff.h"
#include "modBasis.h"

namespace modFangbuch {

namespace {

const QString modul = u"modFangbuch"_qs;

/// The seven fields of the form, in the order in which they are written.
void schreibeFelder(ErrorTail& step, Recordset& fang, const Fangbuch& form, const ArtUndGewaesser& nummern) {
    step([&] { fang.Collect(u"FangJahr"_qs, CLng(form.cboFJahr->currentText())); });
    step([&] { fang.Collect(u"FangMonat"_qs, CLng(form.txtMonNr->text())); });
    step([&] { fang.Collect(u"FischNr"_qs, nummern.fisch); });
    step([&] { fang.Collect(u"GNr"_qs, nummern.gewaesser); });
    step([&] { fang.Collect(u"Notiz"_qs, form.txtNotiz->Text()); });
    step([&] { fang.Collect(u"Anzahl"_qs, CLng(form.txtAnzahl->text())); });
    step([&] { fang.Collect(u"Gewicht"_qs, CLng(form.txtGewicht->text())); });
}

bool imGewaehltenMonat(const Fangbuch& form) {
    return CLng(form.txtMonNr->text()) == modRun::ErmittleMonatsNr(form.cboSelMonat->currentText());
}

/// The fields of a record that its row in the grid is made from.
const QStringList& felderDerZeile() {
    static const QStringList felder = {u"FangNr"_qs,    u"FischNr"_qs, u"GNr"_qs,
                                       u"FangMonat"_qs, u"Anzahl"_qs,  u"Gewicht"_qs};
    return felder;
}

/// The record just made as a row of the grid, if its month is the one on show.
void zeigeNeuen(ErrorTail& step, std::vector<Value> zeile, const Fangbuch& form) {
    const auto monat = [monat = zeile[3]] { return modRun::ErmittleMonatsname(CLng(monat)); };
    if (!step.test([&] { return form.cboSelMonat->currentText() == monat(); })) return;
    step([&] { zeile[1] = ErmittleFischname(CLng(zeile[1])); });
    step([&] { zeile[2] = ErmittleGewaessername(CLng(zeile[2])); });
    step([&] { zeile[3] = monat(); });
    if (!step.test([&] { return imGewaehltenMonat(form); })) return;
    step([&] { form.tblFList->appendRow(zeile); });
    form.tblFList->markRow(form.tblFList->rowCount());
}

} // namespace

void SpeicherFang() {
    withErrorTail(modul, u"SpeicherFang"_qs, [](ErrorTail& step) {
        const Fangbuch& form = screen<Fangbuch>();
        const auto nummern = ermittleNummern(form.cboFArt, form.cboGName);
        if (!nummern) return;
        std::vector<Value> zeile;
        const auto felder = [&](Recordset& fang) { schreibeFelder(step, fang, form, *nummern); };
        if (Datensatz::speichere(step, u"Fang"_qs, felder, Datensatz::lies(step, zeile, felderDerZeile())))
            zeigeNeuen(step, zeile, form);
        FangAnzeigeLoeschen();
        form.cboFArt->setFocus();
        form.lblAnzahl->setText(QString::number(form.tblFList->rowCount()));
        step([&] { form.lblGesAnz->setText(Ermittle_DSAnzahl()); });
    });
}

void UpdateFang(int row) {
    withErrorTail(modul, u"UpdateFang"_qs, [row](ErrorTail& step) {
        const Fangbuch& form = screen<Fangbuch>();
        const auto nummern = ermittleNummern(form.cboFArt, form.cboGName);
        if (!nummern) return;
        const auto felder = [&](Recordset& fang) { schreibeFelder(step, fang, form, *nummern); };
        if (Datensatz::aendere(step, u"Fang"_qs, form.lblFNr->text(), felder)) {
            const std::vector<Value> zeile = {form.lblFNr->text(),          form.cboFArt->currentText(),
                                              form.cboGName->currentText(), form.txtFangMonat->text(),
                                              form.txtAnzahl->text(),       form.txtGewicht->text()};
            step([&] { form.tblFList->removeRow(row); });
            if (step.test([&] { return imGewaehltenMonat(form); })) {
                step([&] { form.tblFList->insertRow(row, zeile); });
                form.tblFList->markRow(row);
            }
        }
        FangAnzeigeLoeschen();
    });
}

void LoescheFang(int row) {
    withErrorTail(modul, u"LoescheFang"_qs, [row](ErrorTail& step) {
        const Fangbuch& form = screen<Fangbuch>();
        if (Datensatz::loesche(step, u"Fang"_qs, form.lblFNr->text())) {
            step([&] { form.tblFList->removeRow(row); });
            form.lblAnzahl->setText(QString::number(form.tblFList->rowCount()));
        }
        FangAnzeigeLoeschen();
        form.cboFArt->setFocus();
    });
}

namespace {

/// The month as the form writes it: always two digits.
QString zweistellig(qint32 monat) {
    constexpr qint32 lastOfOneDigit = 9;
    return (monat <= lastOfOneDigit ? u"0"_qs : QString()) + QString::number(monat);
}

void zeigeFang(ErrorTail& step, const Recordset& fang, Fangbuch& form) {
    const auto text = [&](const QString& field) { return CStr(fang.Collect(field)); };
    const auto monat = [&] { return CLng(fang.Collect(u"FangMonat"_qs)); };
    step([&] { form.lblFNr->setText(text(u"FangNr"_qs)); });
    step([&] { form.cboFArt->setText(text(u"FName"_qs)); });
    step([&] { form.cboGName->setText(text(u"GName"_qs)); });
    step([&] { form.txtAnzahl->setText(text(u"Anzahl"_qs)); });
    step([&] { form.txtGewicht->setText(text(u"Gewicht"_qs)); });
    step([&] { form.txtNotiz->setText(text(u"Notiz"_qs)); });
    step([&] { form.txtMonNr->setText(zweistellig(monat())); });
    step([&] { form.txtFangMonat->setText(modRun::ErmittleMonatsname(monat())); });
    if (!session().KontextZeileOK) form.cboFArt->setFocus();
}

} // namespace

void loadFang(DataTable* grid, int row) {
    withErrorTail(modul, u"loadFang"_qs, [grid, row](ErrorTail& step) {
        Fangbuch& form = screen<Fangbuch>();
        // Opened from the evaluation, the catch book comes up in EDIT, and its activation fills no lists.
        step([&] { modBasis::loadcboFArt(form.cboFArt); });
        step([&] { modBasis::loadcboGName(form.cboGName); });
        Recordset fang;
        step([&] {
            fang = oeffneAbfrage(
                u"SELECT fa.FangNr, f.FName, g.GName, fa.FangMonat, fa.Anzahl, "
                u"fa.Gewicht, fa.Notiz FROM Fang fa , Fisch f, Gewaesser g WHERE fa.FangNr = "_qs +
                grid->cellText(row, 0) + u" AND fa.FischNr = f.FNr AND fa.GNr = g.GNr"_qs);
        });
        if (step.test([&] { return fang.RecordCount() != 0; }))
            zeigeFang(step, fang, form);
        else
            modRun::MeldeNichtVorhanden();
        step([&] { fang.Close(); });
    });
}

void FangAnzeigeLoeschen() {
    Fangbuch& form = screen<Fangbuch>();
    form.lblFNr->setText(QString());
    form.txtFangMonat->setText(QString());
    form.txtMonNr->setText(QString());
    form.cboFArt->setListIndex(-1);
    form.cboGName->setListIndex(-1);
    form.txtAnzahl->setText(QString());
    form.txtGewicht->setText(QString());
    form.txtNotiz->setText(QString());
}

bool FangEingabeVollstaendig() {
    const Fangbuch& form = screen<Fangbuch>();
    return modRun::fehlerfrei(
        modRun::erstesLeere({form.cboFArt, form.cboGName, form.txtAnzahl, form.txtGewicht, form.txtMonNr}));
}

bool FangbuchZugriff_Erlaubt() {
    return zugriffErlaubt(modul, u"FangbuchZugriff_Erlaubt"_qs, u"Fangbuch"_qs);
}

QString Ermittle_DSAnzahl() {
    QString anzahl = u"0"_qs;
    withErrorTail(modul, u"Ermittle_DSAnzahl"_qs, [&](ErrorTail& step) {
        leseWert(step,
                 u"SELECT COUNT(fa.FangNr) FROM Fang fa WHERE fa.FangJahr = "_qs +
                     screen<Fangbuch>().cboFJahr->currentText(),
                 [&](const Value& zahl) { anzahl = zahl.isNull() ? u"0"_qs : CStr(zahl); });
    });
    return anzahl;
}

} // namespace modFangbuch
