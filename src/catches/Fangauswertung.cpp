#include "Fangauswertung.h"

#include "ComboBox.h"
#include "DataTable.h"
#include "ExcelAusgabe.h"
#include "Fangbuch.h"
#include "Jahre.h"
#include "Meldungen.h"
#include "MsgBox.h"
#include "Rahmen.h"
#include "Screens.h"
#include "Session.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modBasis.h"
#include "modFAuswert.h"
#include "modFangbuch.h"

#include <QCheckBox>
#include <algorithm>

using namespace Qt::StringLiterals;

// The layout of the screen is in FangauswertungLayout.cpp; its behaviour is here.

void Fangauswertung::Form_Load() {
    modBasis::loadcboFArt(cboFArt);
    modBasis::loadcboGName(cboGName);
    loadcboFJahr(cboFJahr);
    cboFJahr->setText(QString::number(session().AktJahr));
    cboFMonat->setText(session().AktMonat);
}

void Fangauswertung::Form_Activate() {
    // Filling the two lists drops what is chosen in them. The choice must survive a report.
    if (session().NachReport) {
        session().NachReport = false;
        return;
    }
    modBasis::loadcboFArt(cboFArt);
    modBasis::loadcboGName(cboGName);
}

void Fangauswertung::tbSuch_Click() {
    if (!modFAuswert::AuswahlGueltig()) return;
    const auto filter = {chkArchiv, chkFArt, chkGName, chkFMonat, chkAnzahl, chkGewicht};
    if (std::ranges::none_of(filter, &QCheckBox::isChecked) &&
        !modRun::frage(
            u"ACHTUNG: Wirklich alle Fangdaten aus der Datenbank laden ?\r\n"_s
            u"Bendenken Sie das die Ladezeit je nach Grösse der Datenbank sehr lange dauern kann !"_s))
        return modRun::MeldeAbgebrochen();
    tblFAusw->clearRows();
    for (ValueLabel* label : {lblGefDS, lblSumAnz, lblSumGew}) label->setText(QString());
    modFAuswert::LadeAuswahl();
}

void Fangauswertung::tbExcel_Click() {
    erzeugeAufWunsch(
        *tblFAusw,
        u"Wollen Sie eine in Excel zu importierende Datei mit der Bezeichnung - FANG.csv - erzeugen ?\n\r"_s
        u"ACHTUNG: Der Datei liegen die gerade erzeugten Fangdaten zugrunde ! "_s
        u"Wollen Sie die Datei jetzt erzeugen ?"_s,
        u"Keine Daten zum erzeugen der Datei - FANG.csv - gefunden, der Vorgang wird abgebrochen !"_s,
        &modFAuswert::ErzeugeFangDatei);
}

void Fangauswertung::drucke(const QString& wort) {
    modFAuswert::DruckeFangListe(wort);
}

void Fangauswertung::tblFAusw_OnGridCellDown(int row) {
    session().KontextZeileOK = row >= 0;
    if (row >= 0) setGridRow(row);
}

void Fangauswertung::tblFAusw_OnGridCellMenu() {
    if (tblFAusw->rowCount() >= 1 && session().KontextZeileOK) rahmen()->loadKontMenu_FAusw();
}

void Fangauswertung::tblFAusw_OnGridCellOpen(int row) {
    if (row < 0) return;
    if (!modFangbuch::FangbuchZugriff_Erlaubt()) {
        modRun::MeldeKeinZugriff();
        return;
    }
    modFangbuch::FangAnzeigeLoeschen();
    setGridRow(row);
    // Open the record before Show(), or the catch book fills its lists for a new entry.
    auto& fangbuch = the<Fangbuch>();
    fangbuch.openRecord(tblFAusw->cellText(row, 0), row);
    Hide();
    fangbuch.Show();
    modFangbuch::loadFang(tblFAusw, row);
    fangbuch.openRecord(fangbuch.lblFNr->text(), row);
}
