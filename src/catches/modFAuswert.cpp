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

using namespace Qt::StringLiterals;

namespace modFAuswert {

namespace {

/// FROM and WHERE, shared by the four queries of a search. If a filter can't be put into SQL, each oeffne()
/// throws that error, as it does for an invalid statement.
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
        return oeffneAbfrage(u"SELECT "_s + was + m_text);
    }

private:
    QString m_text = u" FROM Fang fa , Fisch f, Gewaesser g WHERE fa.FischNr = f.FNr AND fa.GNr = g.GNr"_s;
    std::optional<RuntimeError> m_fehler;
};

QString klausel(const QString& field, const Vergleich& bound) {
    return u" AND fa."_s + field + u' ' + bound.zeichen->currentText() + u' ' + bound.wert->text();
}

QWidget* falscheListe(const QCheckBox* box, ComboBox* list) {
    return box->isChecked() ? modRun::erstesLeere({list}) : nullptr;
}

void zeigeSumme(ErrorTail& step, const Selektion& selektion, Recordset& summe, ValueLabel* label,
                const QString& field) {
    step([&] { summe = selektion.oeffne(u"SUM(fa.%1)"_s.arg(field)); });
    const auto wert = [&] { return summe.Collect(u"Expr1000"_s); };
    if (step.test([&] { return wert().isNull(); }))
        label->setText(u"0"_s);
    else
        step([&] { label->setText(CStr(wert())); });
}

void fuelleListe(ErrorTail& step, Recordset& liste, Fangauswertung& screen) {
    qint64 count = 0;
    std::array<Value, 7> zeile;
    std::vector<Recordset::Field> felder;
    screen.pb->show();
    step([&] { liste.MoveFirst(); });
    step([&] { felder = liste.Fields(); });
    step.forEachRow(liste, [&] {
        modRun::leseZellen(step, felder, zeile);
        // The query gives the year first. The grid shows the month's name first.
        std::swap(zeile[3], zeile[4]);
        step([&] { zeile[3] = modRun::ErmittleMonatsname(CLng(zeile[3])); });
        step([&] { screen.tblFAusw->appendRow(zeile); });
        screen.pb->setProgress(++count);
    });
}

} // namespace

void LadeAuswahl() {
    withErrorTail(u"modFAuswert"_s, u"LadeAuswahl"_s, [](ErrorTail& step) {
        Fangauswertung& screen = the<Fangauswertung>();
        const Hourglass hourglass(screen);
        // A guard, because the fifth error leaves the routine by an exception.
        const auto ruhe = qScopeGuard([&] { screen.pb->hide(); });
        Recordset liste, anzahl, summeAnzahl, summeGewicht;
        const Selektion selektion;
        step([&] {
            liste = selektion.oeffne(
                u"fa.FangNr, f.FName, g.GName, fa.FangJahr, fa.FangMonat, fa.Anzahl, fa.Gewicht"_s);
        });
        qint32 gefunden = 0;
        step([&] { anzahl = selektion.oeffne(u"COUNT(fa.FangNr)"_s); });
        const auto wert = [&] { return anzahl.Collect(u"Expr1000"_s); };
        if (step.test([&] { return wert().isNull() || CLng(wert()) == 0; })) {
            screen.lblGefDS->setText(u"0"_s);
        } else {
            step([&] { gefunden = CLng(wert()); });
            screen.lblGefDS->setText(QString::number(gefunden));
            screen.pb->setMax(gefunden);
        }
        zeigeSumme(step, selektion, summeAnzahl, screen.lblSumAnz, u"Anzahl"_s);
        zeigeSumme(step, selektion, summeGewicht, screen.lblSumGew, u"Gewicht"_s);
        screen.tblFAusw->clearRows();
        if (gefunden <= 0)
            MsgBox(u"Keine passenden Einträge gefunden !"_s, vbInformation);
        else
            fuelleListe(step, liste, screen);
        screen.lblGefDS->setText(QString::number(screen.tblFAusw->rowCount()));
        for (Recordset* offen : {&liste, &summeAnzahl, &summeGewicht}) step([&] { offen->Close(); });
    });
}

void ErgaenzeSelektion(QString& filter) {
    const Fangauswertung& screen = the<Fangauswertung>();
    if (screen.chkArchiv->isChecked()) filter += u" AND fa.FangJahr = "_s + screen.cboFJahr->currentText();
    if (screen.chkFArt->isChecked()) filter += u" AND f.FName = "_s + quoted(screen.cboFArt->currentText());
    if (screen.chkGName->isChecked()) filter += u" AND g.GName = "_s + quoted(screen.cboGName->currentText());
    if (screen.chkFMonat->isChecked())
        filter += u" AND fa.FangMonat = "_s +
                  QString::number(modRun::ErmittleMonatsNr(screen.cboFMonat->currentText()));
    if (screen.chkAnzahl->isChecked())
        filter += klausel(u"Anzahl"_s, {screen.cboOptAnz01, screen.txtAnz01}) +
                  klausel(u"Anzahl"_s, {screen.cboOptAnz02, screen.txtAnz02});
    if (screen.chkGewicht->isChecked())
        filter += klausel(u"Gewicht"_s, {screen.cboOptGew01, screen.txtGew01}) +
                  klausel(u"Gewicht"_s, {screen.cboOptGew02, screen.txtGew02});
}

bool AuswahlGueltig() {
    const Fangauswertung& screen = the<Fangauswertung>();
    for (QWidget* falsch :
         {falscheListe(screen.chkArchiv, screen.cboFJahr), falscheListe(screen.chkFMonat, screen.cboFMonat),
          falscheListe(screen.chkFArt, screen.cboFArt), falscheListe(screen.chkGName, screen.cboGName),
          erstesFalsche(screen.chkAnzahl, {screen.cboOptAnz01, screen.txtAnz01},
                        {screen.cboOptAnz02, screen.txtAnz02}),
          erstesFalsche(screen.chkGewicht, {screen.cboOptGew01, screen.txtGew01},
                        {screen.cboOptGew02, screen.txtGew02})})
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
    Fangauswertung& screen = the<Fangauswertung>();
    // The list was filled at the start. If the year of the parameters is not in it, no year is chosen.
    screen.cboFJahr->setListIndex(screen.cboFJahr->findText(QString::number(session().AktJahr)));
    leereFilter(screen.chkArchiv, screen.cboFJahr);
    screen.cboFArt->setListIndex(-1);
    leereFilter(screen.chkFArt, screen.cboFArt);
    screen.cboFMonat->setText(modRun::ErmittleMonatsname(session().AktMonatNr));
    leereFilter(screen.chkFMonat, screen.cboFMonat);
    screen.cboGName->setListIndex(-1);
    leereFilter(screen.chkGName, screen.cboGName);
    leereBounds(screen.chkAnzahl, {screen.cboOptAnz01, screen.txtAnz01},
                {screen.cboOptAnz02, screen.txtAnz02});
    leereBounds(screen.chkGewicht, {screen.cboOptGew01, screen.txtGew01},
                {screen.cboOptGew02, screen.txtGew02});
    screen.tblFAusw->clearRows();
    for (ValueLabel* label : {screen.lblGefDS, screen.lblSumAnz, screen.lblSumGew}) label->setText(QString());
}

void mnuFangInfo_Click() {
    Fangauswertung& screen = the<Fangauswertung>();
    modFangbuch::FangAnzeigeLoeschen();
    modFangbuch::loadFang(screen.tblFAusw, screen.gridRow());
    auto& fangbuch = the<Fangbuch>();
    fangbuch.openRecord(fangbuch.lblFNr->text(), screen.gridRow());
    screen.Hide();
    fangbuch.Show();
}

} // namespace modFAuswert
