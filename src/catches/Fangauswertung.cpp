#include "Fangauswertung.h"

#include "ExcelAusgabe.h"
#include "Fangbuch.h"
#include "Gitter.h"
#include "Jahre.h"
#include "Kalendernamen.h"
#include "Meldungen.h"
#include "Rahmen.h"
#include "Screens.h"
#include "Session.h"
#include "Tastenfilter.h"
#include "modBasis.h"
#include "modFAuswert.h"
#include "modFangbuch.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr int right = 4; ///< first column of the right half of the filters
}

Fangauswertung::Fangauswertung()
    : Screen(u"Fangauswertung"_s, u"Fangauswertung"_s) {
    standForReading();
    layOutFilters();
    setUpGrid();
    Layout::column(this, Ueberschrift, Toolbar1, {Frame1, tblFAusw, sums()}, tblFAusw);
}

Toolbar* Fangauswertung::buildToolbar() {
    return new Toolbar(
        this,
        {{u"tbSuch"_s, u"&Suchen"_s, u"Tabelle durchsuchen..."_s, u"suchen"_s, [this] { tbSuch_Click(); }},
         {u"tbAnzLoeschen"_s, u"&Anz. löschen"_s, u"Anzeige löschen"_s, u"anzeige-loeschen"_s,
          &modFAuswert::AuswertAnzeigeLoeschen},
         {u"tbExcel"_s, u"&Exceldatei erzeugen"_s, u"Excel - Datei - FANG.CSV - erzeugen..."_s, u"excel"_s,
          [this] { tbExcel_Click(); }},
         {u"tbVorschau"_s, u"&Druck - Vorschau"_s, u"Druckvorschau der Fangliste"_s, u"vorschau"_s,
          [this] { drucke(u"vorschau"_s); }},
         {u"tbDruck"_s, u"Drucken"_s, u"Aktuelle Auswahl drucken..."_s, u"drucken"_s,
          [this] { drucke(u"drucken"_s); }}});
}

void Fangauswertung::layOutFilters() {
    for (const QString& month : modRun::Monatsnamen()) cboFMonat->AddItem(month);
    QGridLayout* screen = Layout::form(Frame1);
    const auto addList = [&](int row, int column, const Auswahl& auswahl) {
        const auto [filter, liste] = auswahl;
        liste->setAccessibleName(filter->text());
        liste->setEnabled(false);
        connect(filter, &QCheckBox::toggled, liste, &QWidget::setEnabled);
        screen->addWidget(filter, row, column);
        screen->addWidget(liste, row, column + 1, 1, 2);
    };
    const auto& [jahr, monat, art, gewaesser] = auswahlen;
    addList(0, 0, jahr);
    addList(1, 0, art);
    addList(0, right, monat);
    addList(1, right, gewaesser);
    layOutBounds(screen);
    screen->setColumnMinimumWidth(right - 1, 2 * Layout::gap);
    for (const int column : {2, right + 2}) screen->setColumnStretch(column, 1);
    Frame1->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void Fangauswertung::layOutBounds(QGridLayout* screen) {
    screen->addWidget(Label1, 2, 1, 1, 2, Qt::AlignHCenter);
    screen->addWidget(Label2, 2, right + 1, 1, 2, Qt::AlignHCenter);
    int row = 3;
    for (const auto& [feld, filter, unten, oben] : grenzen) {
        unten.richteEin(u"%1, Untergrenze"_s.arg(feld));
        oben.richteEin(u"%1, Obergrenze"_s.arg(feld));
        // The upper number starts enabled although its filter is not ticked. Clearing the filter disables it.
        oben.wert->setEnabled(true);
        for (TextBox* box : {unten.wert, oben.wert}) {
            box->setAlignment(Qt::AlignRight);
            box->setKeyFilter(&modRun::FilterZiffern);
        }
        for (QWidget* control :
             std::initializer_list<QWidget*>{unten.zeichen, unten.wert, oben.zeichen, oben.wert})
            connect(filter, &QCheckBox::toggled, control, &QWidget::setEnabled);
        screen->addWidget(filter, row, 0);
        screen->addWidget(unten.zeichen, row, 1);
        screen->addWidget(unten.wert, row, 2);
        screen->addWidget(oben.zeichen, row, right + 1);
        screen->addWidget(oben.wert, row++, right + 2);
    }
}

void Fangauswertung::setUpGrid() {
    tblFAusw->setColumns({{u"FangNr"_s, 72, true},
                          {u"Fischart"_s, 176},
                          {u"Gewässer"_s, 176},
                          {.head = u"Monat"_s, .width = 88, .order = modRun::Monatsnamen()},
                          {u"Fangjahr"_s, 72, true},
                          {u"Anzahl"_s, 72, true},
                          {u"Gew. i. Gramm"_s, 112, true}});
    tblFAusw->setSortable();
    tblFAusw->setEmptyHint(u"Setzen Sie oben Häkchen vor das, wonach Sie aussuchen wollen.\n"_s
                           u"Dann drücken Sie „Suchen“."_s);
    tblFAusw->setAccessibleName(u"Gefundene Fänge"_s);
    on(tblFAusw, &DataTable::OnGridCellDown, [this](int row, int) {
        session().KontextZeileOK = row >= 0;
        if (row >= 0) setGridRow(row);
    });
    on(tblFAusw, &DataTable::OnGridCellOpen, [this](int row, int) { tblFAusw_OnGridCellOpen(row); });
    on(tblFAusw, &DataTable::OnGridCellMenu, [this] {
        if (tblFAusw->rowCount() >= 1 && session().KontextZeileOK) rahmen()->loadKontMenu_FAusw();
    });
    modRun::connectGridFocus(tblFAusw);
    modRun::leereAuswahlBeiFokus(tblFAusw);
}

QWidget* Fangauswertung::sums() {
    QHBoxLayout* row = Layout::line(this);
    row->addWidget(pb, 1);
    row->addStretch();
    pb->hide();
    Layout::addCount(row, lblAnzDS, lblGefDS);
    Layout::addCount(row, lblSAnz, lblSumAnz);
    Layout::addCount(row, lblSGew, lblSumGew);
    return row->parentWidget();
}

void Fangauswertung::Form_Load() {
    modBasis::loadcboFArt(cboFArt);
    modBasis::loadcboGName(cboGName);
    loadcboFJahr(cboFJahr);
    cboFJahr->setText(QString::number(session().AktJahr));
    cboFMonat->setText(session().AktMonat);
}

void Fangauswertung::Form_Activate() {
    // Filling the two lists drops what is chosen in them. The choice must survive a report.
    if (std::exchange(session().NachReport, false)) return;
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
    erzeugeAufWunsch(*tblFAusw, u"FANG.csv"_s, u"gerade erzeugten Fangdaten"_s,
                     &modFAuswert::ErzeugeFangDatei);
}

void Fangauswertung::drucke(const QString& wort) { modFAuswert::DruckeFangListe(wort); }

void Fangauswertung::tblFAusw_OnGridCellOpen(int row) {
    if (!modFangbuch::FangbuchZugriff_Erlaubt()) return modRun::MeldeKeinZugriff();
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
