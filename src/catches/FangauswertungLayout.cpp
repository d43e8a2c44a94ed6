#include "ComboBox.h"
#include "DataTable.h"
#include "Fangauswertung.h"
#include "Gitter.h"
#include "Heading.h"
#include "Kalendernamen.h"
#include "Layout.h"
#include "ProgressBar.h"
#include "Tastenfilter.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modFAuswert.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

using namespace Qt::StringLiterals;

Fangauswertung::Fangauswertung()
    : Screen(u"Fangauswertung"_s, u"Fangauswertung"_s) {
    standForReading();
    Ueberschrift = new Heading(u"FANGAUSWERTUNG"_s, this);
    buildToolbar();
    Frame1 = Layout::frame(u"Frame1"_s, u"Liste generieren..."_s, this);
    buildLists();
    buildBounds();
    buildGrid();
    layOutFilters();
    QVBoxLayout* rest = Layout::column(this, Ueberschrift, Toolbar1);
    rest->addWidget(Frame1);
    rest->addWidget(tblFAusw, 1);
    rest->addWidget(layOutSums());
    connectEvents();
}

void Fangauswertung::buildToolbar() {
    Toolbar1 = new Toolbar(this);
    Toolbar1->addKeys(
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

ComboBox* Fangauswertung::addList(const QString& name, QCheckBox* captionedBy) {
    auto* list = new ComboBox(name, Frame1);
    list->setAccessibleName(captionedBy->text());
    list->setEnabled(false);
    return list;
}

Vergleich Fangauswertung::addBound(const QString& list, const QString& box, const QString& spoken) {
    const Vergleich bound = {new ComboBox(list, Frame1), new TextBox(box, Frame1)};
    bound.richteEin(spoken);
    bound.wert->setAlignment(Qt::AlignRight);
    bound.wert->setKeyFilter(&modRun::FilterZiffern);
    return bound;
}

void Fangauswertung::buildLists() {
    chkArchiv = Layout::checkBox(u"chkArchiv"_s, u"Fangjahr"_s, Frame1);
    cboFJahr = addList(u"cboFJahr"_s, chkArchiv);
    chkFMonat = Layout::checkBox(u"chkFMonat"_s, u"Fangmonat..."_s, Frame1);
    cboFMonat = addList(u"cboFMonat"_s, chkFMonat);
    for (int month = 1; month <= 12; ++month) cboFMonat->AddItem(modRun::ErmittleMonatsname(month));
    chkFArt = Layout::checkBox(u"chkFArt"_s, u"Fischart..."_s, Frame1);
    cboFArt = addList(u"cboFArt"_s, chkFArt);
    chkGName = Layout::checkBox(u"chkGName"_s, u"Gewässer..."_s, Frame1);
    cboGName = addList(u"cboGName"_s, chkGName);
}

void Fangauswertung::buildBounds() {
    Label1 = Layout::label(u"Label1"_s, u"- Untergrenze -"_s, Frame1);
    Label2 = Layout::label(u"Label2"_s, u"- Obergrenze -"_s, Frame1);
    chkAnzahl = Layout::checkBox(u"chkAnzahl"_s, u"Anzahl..."_s, Frame1);
    const Vergleich numberLow = addBound(u"cboOptAnz01"_s, u"txtAnz01"_s, u"Anzahl, Untergrenze"_s);
    const Vergleich numberHigh = addBound(u"cboOptAnz02"_s, u"txtAnz02"_s, u"Anzahl, Obergrenze"_s);
    chkGewicht = Layout::checkBox(u"chkGewicht"_s, u"Gewicht i. Gramm..."_s, Frame1);
    const Vergleich weightLow = addBound(u"cboOptGew01"_s, u"txtGew01"_s, u"Gewicht, Untergrenze"_s);
    const Vergleich weightHigh = addBound(u"cboOptGew02"_s, u"txtGew02"_s, u"Gewicht, Obergrenze"_s);
    // The upper numbers start enabled although their filter is not ticked. Clearing the filter disables them.
    for (const Vergleich& high : {numberHigh, weightHigh}) high.wert->setEnabled(true);
    cboOptAnz01 = numberLow.zeichen;
    txtAnz01 = numberLow.wert;
    cboOptAnz02 = numberHigh.zeichen;
    txtAnz02 = numberHigh.wert;
    cboOptGew01 = weightLow.zeichen;
    txtGew01 = weightLow.wert;
    cboOptGew02 = weightHigh.zeichen;
    txtGew02 = weightHigh.wert;
}

void Fangauswertung::layOutFilters() {
    auto* screen = new QGridLayout(Frame1);
    screen->setHorizontalSpacing(Layout::gap);
    const auto addLine = [screen](int row, int column, QWidget* box, QWidget* list) {
        screen->addWidget(box, row, column);
        screen->addWidget(list, row, column + 1, 1, 2);
    };
    constexpr int right = 4;
    addLine(0, 0, chkArchiv, cboFJahr);
    addLine(1, 0, chkFArt, cboFArt);
    addLine(0, right, chkFMonat, cboFMonat);
    addLine(1, right, chkGName, cboGName);
    screen->addWidget(Label1, 2, 1, 1, 2, Qt::AlignHCenter);
    screen->addWidget(Label2, 2, right + 1, 1, 2, Qt::AlignHCenter);
    const auto addBounds = [screen](int row, QWidget* box, const Vergleich& low, const Vergleich& high) {
        screen->addWidget(box, row, 0);
        screen->addWidget(low.zeichen, row, 1);
        screen->addWidget(low.wert, row, 2);
        screen->addWidget(high.zeichen, row, right + 1);
        screen->addWidget(high.wert, row, right + 2);
    };
    addBounds(3, chkAnzahl, {cboOptAnz01, txtAnz01}, {cboOptAnz02, txtAnz02});
    addBounds(4, chkGewicht, {cboOptGew01, txtGew01}, {cboOptGew02, txtGew02});
    screen->setColumnMinimumWidth(3, 2 * Layout::gap);
    for (const int column : {2, right + 2}) screen->setColumnStretch(column, 1);
    Frame1->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void Fangauswertung::buildGrid() {
    tblFAusw = new DataTable(u"tblFAusw"_s, this);
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
    lblAnzDS = Layout::label(u"lblAnzDS"_s, u"Gefunden:"_s, this);
    lblGefDS = new ValueLabel(u"lblGefDS"_s, this);
    lblSAnz = Layout::label(u"lblSAnz"_s, u"Summe -Anzahl-:"_s, this);
    lblSumAnz = new ValueLabel(u"lblSumAnz"_s, this);
    lblSGew = Layout::label(u"lblSGew"_s, u"Summe -Gewicht-:"_s, this);
    lblSumGew = new ValueLabel(u"lblSumGew"_s, this);
    pb = new ProgressBar(u"pb"_s, this);
    pb->hide();
}

QWidget* Fangauswertung::layOutSums() {
    QHBoxLayout* row = Layout::line(this);
    row->addWidget(pb, 1);
    row->addStretch();
    const auto add = [row](QLabel* caption, ValueLabel* value) {
        row->addWidget(caption);
        row->addWidget(value);
        value->setAccessibleName(caption->text());
        value->setNumeric();
    };
    add(lblAnzDS, lblGefDS);
    add(lblSAnz, lblSumAnz);
    add(lblSGew, lblSumGew);
    return row->parentWidget();
}

void Fangauswertung::connectFilter(QCheckBox* box, const QVector<QWidget*>& controls) {
    on(box, &QCheckBox::toggled, [controls](bool ticked) {
        for (QWidget* control : controls) control->setEnabled(ticked);
    });
}

void Fangauswertung::connectEvents() {
    connectFilter(chkArchiv, {cboFJahr});
    connectFilter(chkFArt, {cboFArt});
    connectFilter(chkGName, {cboGName});
    connectFilter(chkFMonat, {cboFMonat});
    connectFilter(chkAnzahl, {cboOptAnz01, txtAnz01, cboOptAnz02, txtAnz02});
    connectFilter(chkGewicht, {cboOptGew01, txtGew01, cboOptGew02, txtGew02});
    on(tblFAusw, &DataTable::OnGridCellDown, [this](int row, int) { tblFAusw_OnGridCellDown(row); });
    on(tblFAusw, &DataTable::OnGridCellOpen, [this](int row, int) { tblFAusw_OnGridCellOpen(row); });
    on(tblFAusw, &DataTable::OnGridCellMenu, [this] { tblFAusw_OnGridCellMenu(); });
    modRun::connectGridFocus(tblFAusw);
    modRun::leereAuswahlBeiFokus(tblFAusw);
}
