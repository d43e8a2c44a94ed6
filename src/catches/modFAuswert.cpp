#include "modFAuswert.h"

#include "Conversions.h"
#include "CsvDatei.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "ExcelAusgabe.h"
#include "Fangauswertung.h"
#include "Fangbuch.h"
#include "Hourglass.h"
#include "Kalendernamen.h"
#include "MsgBox.h"
#include "Screens.h"
#include "Session.h"
#include "SqlText.h"
#include "modFangbuch.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace modFAuswert {

namespace {

/// Appends the clauses of the ticked filters to a query. Number and weight append both bounds: if the upper
/// one is empty, the query is invalid and the store refuses it.
void ErgaenzeSelektion(QString& filter) {
    const Fangauswertung& screen = the<Fangauswertung>();
    if (screen.chkArchiv->isChecked()) filter += u" AND fa.FangJahr = "_s + screen.cboFJahr->currentText();
    if (screen.chkFArt->isChecked()) filter += u" AND f.FName = "_s + quoted(screen.cboFArt->currentText());
    if (screen.chkGName->isChecked()) filter += u" AND g.GName = "_s + quoted(screen.cboGName->currentText());
    if (screen.chkFMonat->isChecked())
        filter += u" AND fa.FangMonat = "_s +
                  QString::number(modRun::ErmittleMonatsNr(screen.cboFMonat->currentText()));
    for (const auto& [feld, box, unten, oben] : screen.grenzen) {
        if (!box->isChecked()) continue;
        for (const Vergleich& bound : {unten, oben})
            filter += u" AND fa.%1 %2 %3"_s.arg(feld, bound.zeichen->currentText(), bound.wert->text());
    }
}

/// One of the four queries of a search.
Recordset oeffne(const QString& was) {
    QString select = u"SELECT "_s + was +
                     u" FROM Fang fa , Fisch f, Gewaesser g WHERE fa.FischNr = f.FNr AND fa.GNr = g.GNr"_s;
    ErgaenzeSelektion(select);
    return oeffneAbfrage(select);
}

void zeigeSumme(ErrorTail& step, Recordset& summe, ValueLabel* label, const QString& field) {
    step([&] { summe = oeffne(u"SUM(fa.%1)"_s.arg(field)); });
    const auto wert = [&] { return summe.Collect(u"Expr1000"_s); };
    if (step.test([&] { return wert().isNull(); }))
        label->setText(u"0"_s);
    else
        step([&] { label->setText(CStr(wert())); });
}

} // namespace

void LadeAuswahl() {
    withErrorTail(u"modFAuswert"_s, u"LadeAuswahl"_s, [](ErrorTail& step) {
        Fangauswertung& screen = the<Fangauswertung>();
        const Hourglass hourglass(screen);
        // A guard, because the fifth error leaves the routine by an exception.
        const auto ruhe = qScopeGuard([&] { screen.pb->hide(); });
        Recordset liste, anzahl, summeAnzahl, summeGewicht;
        step([&] {
            liste =
                oeffne(u"fa.FangNr, f.FName, g.GName, fa.FangJahr, fa.FangMonat, fa.Anzahl, fa.Gewicht"_s);
        });
        qint32 gefunden = 0;
        step([&] { anzahl = oeffne(u"COUNT(fa.FangNr)"_s); });
        const auto wert = [&] { return anzahl.Collect(u"Expr1000"_s); };
        if (step.test([&] { return wert().isNull() || CLng(wert()) == 0; })) {
            screen.lblGefDS->setText(u"0"_s);
        } else {
            step([&] { gefunden = CLng(wert()); });
            screen.lblGefDS->setText(QString::number(gefunden));
            screen.pb->setMax(gefunden);
        }
        zeigeSumme(step, summeAnzahl, screen.lblSumAnz, u"Anzahl"_s);
        zeigeSumme(step, summeGewicht, screen.lblSumGew, u"Gewicht"_s);
        screen.tblFAusw->clearRows();
        if (gefunden <= 0) {
            MsgBox(u"Keine passenden Einträge gefunden !"_s, vbInformation);
        } else {
            screen.pb->show();
            modFangbuch::fuelleListe(step, liste, screen.tblFAusw, screen.pb, 4);
        }
        screen.lblGefDS->setText(QString::number(screen.tblFAusw->rowCount()));
        for (Recordset* offen : {&liste, &summeAnzahl, &summeGewicht}) step([&] { offen->Close(); });
    });
}

bool AuswahlGueltig() {
    const Fangauswertung& screen = the<Fangauswertung>();
    for (const auto& [filter, liste] : screen.auswahlen)
        if (filter->isChecked() && !modRun::fehlerfrei(modRun::erstesLeere({liste}))) return false;
    for (const auto& [feld, filter, unten, oben] : screen.grenzen)
        if (!modRun::fehlerfrei(erstesFalsche(filter, unten, oben))) return false;
    return true;
}

void AuswertAnzeigeLoeschen() {
    Fangauswertung& screen = the<Fangauswertung>();
    // The list was filled at the start. If the year of the parameters is not in it, no year is chosen.
    screen.cboFJahr->setListIndex(screen.cboFJahr->findText(QString::number(session().AktJahr)));
    screen.cboFArt->setListIndex(-1);
    screen.cboFMonat->setText(modRun::ErmittleMonatsname(session().AktMonatNr));
    screen.cboGName->setListIndex(-1);
    // Unticking a check box also disables its controls.
    for (const auto& [filter, liste] : screen.auswahlen) filter->setChecked(false);
    for (const auto& [feld, filter, unten, oben] : screen.grenzen) {
        for (const Vergleich& bound : {unten, oben}) {
            bound.leere();
            bound.setEnabled(false);
        }
        filter->setChecked(false);
    }
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

namespace {

/// Year, point and two digits of the month. The spreadsheet reads and sorts it as a number.
QString fangdatum(const QString& jahr, const QString& monatsname) {
    static const std::array<QString, 12> endungen = {u".01"_s, u".02"_s, u".03"_s, u".04"_s,
                                                     u".05"_s, u".06"_s, u".07"_s, u".08"_s,
                                                     u".09"_s, u".10"_s, u".11"_s, u".12"_s};
    return jahr + endungen[static_cast<std::size_t>(modRun::ErmittleMonatsNr(monatsname) - 1)];
}

void schreibeZeile(CsvDatei& datei, const DataTable& grid, int row) {
    datei.writeField(grid.cell(row, 0), 15, CsvDatei::Fill::Padded);
    datei.writeField(grid.cell(row, 1), 50);
    datei.writeField(grid.cell(row, 2), 50);
    datei.writeText(fangdatum(grid.cellText(row, 4), grid.cellText(row, 3)), 20);
    datei.writeField(grid.cell(row, 5), 5);
    datei.writeField(grid.cell(row, 6), 10);
    datei.endLine();
}

} // namespace

void ErzeugeFangDatei() {
    schreibeFuerExcel(
        *the<Fangauswertung>().tblFAusw, u"FANG.csv"_s, u"der Fangdatei"_s,
        {u"FangNr"_s, u"Fischart"_s, u"Gewässer"_s, u"Fangdatum(jjjj.m)"_s, u"Anzahl"_s, u"Gewicht"_s},
        &schreibeZeile, &StarteExcelFang);
}

void StarteExcelFang() { zeigeInExcel(u"Fang.csv"_s, 6); }

} // namespace modFAuswert
