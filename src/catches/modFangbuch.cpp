#include "modFangbuch.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "ErrorTail.h"
#include "Fangbuch.h"
#include "MemoBox.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "TextBox.h"
#include "ValueLabel.h"
#include "Zugriff.h"
#include "modRun.h"

namespace modFangbuch {

namespace {

const QString modul = u"modFangbuch"_qs;

/// The seven fields of the form, in the order in which they are written.
void schreibeFelder(ErrorTail& step, Recordset& fang, const Fangbuch& form) {
    step([&] { fang.Collect(u"FangJahr"_qs, CLng(form.cboFJahr->Text())); });
    step([&] { fang.Collect(u"FangMonat"_qs, CLng(form.txtMonNr->Text())); });
    step([&] { fang.Collect(u"FischNr"_qs, ErmittleFischNr(form.cboFArt->Text())); });
    step([&] { fang.Collect(u"GNr"_qs, ErmittleGewaesserNr(form.cboGName->Text())); });
    step([&] { fang.Collect(u"Notiz"_qs, form.txtNotiz->Text()); });
    step([&] { fang.Collect(u"Anzahl"_qs, CLng(form.txtAnzahl->Text())); });
    step([&] { fang.Collect(u"Gewicht"_qs, CLng(form.txtGewicht->Text())); });
}

/// Seeks the record whose number the form shows.
bool findeOffenen(ErrorTail& step, Recordset& fang, const Fangbuch& form) {
    return modRun::findeIn(step, fang, u"Fang"_qs, form.lblFNr->Caption());
}

bool imGewaehltenMonat(const Fangbuch& form) {
    return CLng(form.txtMonNr->Text()) == modRun::ErmittleMonatsNr(form.cboSelMonat->Text());
}

/// The record just made as a row of the grid, if its month is the one on show.
void zeigeNeuen(ErrorTail& step, const Recordset& fang, Fangbuch& form) {
    const auto number = [&](const QString& field) { return CLng(fang.Collect(field)); };
    const auto monat = [&] { return modRun::ErmittleMonatsname(number(u"FangMonat"_qs)); };
    if (!step.test([&] { return form.cboSelMonat->Text() == monat(); })) return;
    std::vector<Value> zeile(6);
    step([&] { zeile[0] = fang.Collect(u"FangNr"_qs); });
    step([&] { zeile[1] = ErmittleFischname(number(u"FischNr"_qs)); });
    step([&] { zeile[2] = ErmittleGewaessername(number(u"GNr"_qs)); });
    step([&] { zeile[3] = monat(); });
    step([&] { zeile[4] = fang.Collect(u"Anzahl"_qs); });
    step([&] { zeile[5] = fang.Collect(u"Gewicht"_qs); });
    if (step.test([&] { return imGewaehltenMonat(form); })) {
        step([&] { form.tblFList->appendRow(zeile); });
        form.tblFList->refresh();
    }
}

} // namespace

void InitFangbuch() {
    modRun::beendeVorgang();
    session().AktZeile = 0;
}

void SpeicherFang() {
    withErrorTail(modul, u"SpeicherFang"_qs, [](ErrorTail& step) {
        Fangbuch& form = screen<Fangbuch>();
        Recordset fang;
        step([&] { fang = oeffneTabelle(u"Fang"_qs); });
        step([&] { fang.AddNew(); });
        schreibeFelder(step, fang, form);
        if (modRun::speichereNeuen(step, fang)) zeigeNeuen(step, fang, form);
        FangAnzeigeLoeschen();
        form.cboFArt->setFocus();
        form.lblAnzahl->setCaption(QString::number(form.tblFList->rowCount()));
        step([&] { form.lblGesAnz->setCaption(Ermittle_DSAnzahl()); });
        step([&] { fang.Close(); });
    });
}

void UpdateFang(int row) {
    withErrorTail(modul, u"UpdateFang"_qs, [row](ErrorTail& step) {
        Fangbuch& form = screen<Fangbuch>();
        Recordset fang;
        if (!findeOffenen(step, fang, form)) {
            modRun::MeldeNichtVorhanden();
        } else {
            step([&] { fang.Edit(); });
            schreibeFelder(step, fang, form);
            step([&] { fang.Update(); });
            std::vector<Value> zeile = {form.lblFNr->Caption(), form.cboFArt->Text(),
                                        form.cboGName->Text(),  form.txtFangMonat->Text(),
                                        form.txtAnzahl->Text(), form.txtGewicht->Text()};
            step([&] { form.tblFList->removeRow(row); });
            if (step.test([&] { return imGewaehltenMonat(form); })) {
                step([&] { form.tblFList->insertRow(row, zeile); });
                form.tblFList->refresh();
            }
        }
        FangAnzeigeLoeschen();
        step([&] { fang.Close(); });
    });
}

void LoescheFang(int row) {
    withErrorTail(modul, u"LoescheFang"_qs, [row](ErrorTail& step) {
        Fangbuch& form = screen<Fangbuch>();
        Recordset fang;
        if (findeOffenen(step, fang, form)) {
            step([&] { fang.Delete(); });
            step([&] { form.tblFList->removeRow(row); });
            form.lblAnzahl->setCaption(QString::number(form.tblFList->rowCount()));
        } else {
            modRun::MeldeNichtVorhanden();
        }
        FangAnzeigeLoeschen();
        form.cboFArt->setFocus();
        step([&] { fang.Close(); });
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
    step([&] { form.lblFNr->setCaption(text(u"FangNr"_qs)); });
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
        step([&] { loadcboFArt(form.cboFArt); });
        step([&] { loadcboGName(form.cboGName); });
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
    form.lblFNr->setCaption(QString());
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
    const QString fields[] = {form.cboFArt->Text(), form.cboGName->Text(), form.txtAnzahl->Text(),
                              form.txtGewicht->Text(), form.txtMonNr->Text()};
    for (const QString& field : fields) {
        if (!field.isEmpty()) continue;
        modRun::MeldeEingabeFehler();
        return false;
    }
    return true;
}

bool FangbuchZugriff_Erlaubt() {
    return zugriffErlaubt(modul, u"FangbuchZugriff_Erlaubt"_qs, u"Fangbuch"_qs);
}

QString Ermittle_DSAnzahl() {
    QString anzahl = u"0"_qs;
    withErrorTail(modul, u"Ermittle_DSAnzahl"_qs, [&](ErrorTail& step) {
        Recordset fang;
        step([&] {
            fang = oeffneAbfrage(u"SELECT COUNT(fa.FangNr) FROM Fang fa WHERE fa.FangJahr = "_qs +
                                 screen<Fangbuch>().cboFJahr->Text());
        });
        step([&] {
            const Value count = fang.Collect(u"Expr1000"_qs);
            anzahl = count.isNull() ? u"0"_qs : CStr(count);
        });
        step([&] { fang.Close(); });
    });
    return anzahl;
}

} // namespace modFangbuch
