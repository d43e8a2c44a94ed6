#include "modFAuswert.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "Datenbank.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "Fangauswertung.h"
#include "Fangbuch.h"
#include "Feldwerte.h"
#include "Hourglass.h"
#include "Kalendernamen.h"
#include "MsgBox.h"
#include "ProgressBar.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "SqlText.h"
#include "TextBox.h"
#include "ValueLabel.h"
#include "modFangbuch.h"

#include <QCheckBox>
#include <QScopeGuard>

namespace modFAuswert {

namespace {

/// What all four statements have in common, made once. A filter that can't be put into SQL fails each of
/// them, just as an invalid statement does.
class Selektion {
public:
    Selektion() {
        try {
            ErgaenzeSelektion(m_text);
        } catch (const RuntimeError& error) {
            m_fehler = error;
        }
    }

    Recordset oeffne(const QString& was) const {
        if (m_fehler) throw *m_fehler;
        return oeffneAbfrage(u"SELECT "_qs + was + m_text);
    }

private:
    QString m_text = u" FROM Fang fa , Fisch f, Gewaesser g WHERE fa.FischNr = f.FNr AND fa.GNr = g.GNr"_qs;
    std::optional<RuntimeError> m_fehler;
};

QString klausel(const QString& field, const Vergleich& bound) {
    return u" AND fa."_qs + field + u' ' + bound.zeichen->currentText() + u' ' + bound.wert->text();
}

QWidget* falscheListe(const QCheckBox* box, ComboBox* list) {
    return box->isChecked() ? modRun::erstesLeere({list}) : nullptr;
}

void zeigeSumme(ErrorTail& step, const Selektion& selektion, Recordset& summe, ValueLabel* label,
                const QString& field) {
    step([&] { summe = selektion.oeffne(u"SUM(fa.%1)"_qs.arg(field)); });
    const auto wert = [&] { return summe.Collect(u"Expr1000"_qs); };
    if (step.test([&] { return wert().isNull(); }))
        label->setText(u"0"_qs);
    else
        step([&] { label->setText(CStr(wert())); });
}

void fuelleListe(ErrorTail& step, Recordset& liste, Fangauswertung& form) {
    qint64 count = 0;
    std::array<Value, 7> zeile;
    std::vector<Recordset::Field> felder;
    form.pb->show();
    step([&] { liste.MoveFirst(); });
    step([&] { felder = liste.Fields(); });
    step.forEachRow(liste, [&] {
        modRun::leseZellen(step, felder, zeile);
        // The grid has the month, by its name, before the year.
        std::swap(zeile[3], zeile[4]);
        step([&] { zeile[3] = modRun::ErmittleMonatsname(CLng(zeile[3])); });
        step([&] { form.tblFAusw->appendRow(zeile); });
        form.pb->setProgress(++count);
    });
}

} // namespace

void LadeAuswahl() {
    withErrorTail(u"modFAuswert"_qs, u"LadeAuswahl"_qs, [](ErrorTail& step) {
        Fangauswertung& form = screen<Fangauswertung>();
        const Hourglass hourglass(form);
        // Also where a fifth error ends it.
        const auto ruhe = qScopeGuard([&] { form.pb->hide(); });
        Recordset liste, anzahl, summeAnzahl, summeGewicht;
        const Selektion selektion;
        step([&] {
            liste = selektion.oeffne(
                u"fa.FangNr, f.FName, g.GName, fa.FangJahr, fa.FangMonat, fa.Anzahl, fa.Gewicht"_qs);
        });
        qint32 gefunden = 0;
        step([&] { anzahl = selektion.oeffne(u"COUNT(fa.FangNr)"_qs); });
        const auto wert = [&] { return anzahl.Collect(u"Expr1000"_qs); };
        if (step.test([&] { return wert().isNull() || CLng(wert()) == 0; })) {
            form.lblGefDS->setText(u"0"_qs);
        } else {
            step([&] { gefunden = CLng(wert()); });
            form.lblGefDS->setText(QString::number(gefunden));
            form.pb->setMax(gefunden);
        }
        zeigeSumme(step, selektion, summeAnzahl, form.lblSumAnz, u"Anzahl"_qs);
        zeigeSumme(step, selektion, summeGewicht, form.lblSumGew, u"Gewicht"_qs);
        form.tblFAusw->clearRows();
        if (gefunden <= 0)
            MsgBox(u"Keine passenden Einträge gefunden !"_qs, vbInformation);
        else
            fuelleListe(step, liste, form);
        form.lblGefDS->setText(QString::number(form.tblFAusw->rowCount()));
        for (Recordset* offen : {&liste, &summeAnzahl, &summeGewicht}) step([&] { offen->Close(); });
    });
}

void ErgaenzeSelektion(QString& filter) {
    const Fangauswertung& form = screen<Fangauswertung>();
    if (form.chkArchiv->isChecked()) filter += u" AND fa.FangJahr = "_qs + form.cboFJahr->currentText();
    if (form.chkFArt->isChecked()) filter += u" AND f.FName = "_qs + quoted(form.cboFArt->currentText());
    if (form.chkGName->isChecked()) filter += u" AND g.GName = "_qs + quoted(form.cboGName->currentText());
    if (form.chkFMonat->isChecked())
        filter += u" AND fa.FangMonat = "_qs +
                  QString::number(modRun::ErmittleMonatsNr(form.cboFMonat->currentText()));
    if (form.chkAnzahl->isChecked())
        filter += klausel(u"Anzahl"_qs, {form.cboOptAnz01, form.txtAnz01}) +
                  klausel(u"Anzahl"_qs, {form.cboOptAnz02, form.txtAnz02});
    if (form.chkGewicht->isChecked())
        filter += klausel(u"Gewicht"_qs, {form.cboOptGew01, form.txtGew01}) +
                  klausel(u"Gewicht"_qs, {form.cboOptGew02, form.txtGew02});
}

bool AuswahlGueltig() {
    const Fangauswertung& form = screen<Fangauswertung>();
    for (QWidget* falsch :
         {falscheListe(form.chkArchiv, form.cboFJahr), falscheListe(form.chkFMonat, form.cboFMonat),
          falscheListe(form.chkFArt, form.cboFArt), falscheListe(form.chkGName, form.cboGName),
          erstesFalsche(form.chkAnzahl, {form.cboOptAnz01, form.txtAnz01}, {form.cboOptAnz02, form.txtAnz02}),
          erstesFalsche(form.chkGewicht, {form.cboOptGew01, form.txtGew01},
                        {form.cboOptGew02, form.txtGew02})})
        if (!modRun::fehlerfrei(falsch)) return false;
    return true;
}

namespace {

void leereFilter(QCheckBox* box, ComboBox* list) {
    list->setEnabled(false);
    box->setChecked(false);
}

void leereBounds(QCheckBox* box, const Vergleich& low, const Vergleich& high) {
    for (const Vergleich& bound : {low, high}) {
        bound.leere();
        bound.setEnabled(false);
    }
    box->setChecked(false);
}

} // namespace

void AuswertAnzeigeLoeschen() {
    Fangauswertung& form = screen<Fangauswertung>();
    // The parameters may meanwhile name a year that the list, made at the start, does not hold.
    form.cboFJahr->setListIndex(form.cboFJahr->findText(QString::number(session().AktJahr)));
    leereFilter(form.chkArchiv, form.cboFJahr);
    form.cboFArt->setListIndex(-1);
    leereFilter(form.chkFArt, form.cboFArt);
    form.cboFMonat->setText(modRun::ErmittleMonatsname(session().AktMonatNr));
    leereFilter(form.chkFMonat, form.cboFMonat);
    form.cboGName->setListIndex(-1);
    leereFilter(form.chkGName, form.cboGName);
    leereBounds(form.chkAnzahl, {form.cboOptAnz01, form.txtAnz01}, {form.cboOptAnz02, form.txtAnz02});
    leereBounds(form.chkGewicht, {form.cboOptGew01, form.txtGew01}, {form.cboOptGew02, form.txtGew02});
    form.tblFAusw->clearRows();
    for (ValueLabel* label : {form.lblGefDS, form.lblSumAnz, form.lblSumGew}) label->setText(QString());
}

void mnuFangInfo_Click() {
    Fangauswertung& form = screen<Fangauswertung>();
    modFangbuch::FangAnzeigeLoeschen();
    modFangbuch::loadFang(form.tblFAusw, form.gridRow());
    auto& fangbuch = screen<Fangbuch>();
    fangbuch.openRecord(fangbuch.lblFNr->text(), form.gridRow());
    form.Hide();
    fangbuch.Show();
}

} // namespace modFAuswert
