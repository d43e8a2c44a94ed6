#include "ComboBox.h"
#include "DataTable.h"
#include "Face.h"
#include "Fangauswertung.h"
#include "Gitter.h"
#include "Heading.h"
#include "Kalendernamen.h"
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

Fangauswertung::Fangauswertung()
    : Screen(u"Fangauswertung"_qs, u"Fangauswertung"_qs) {
    standForReading();
    Ueberschrift = new Heading(u"FANGAUSWERTUNG"_qs, this);
    buildToolbar();
    Frame1 = Face::frame(u"Frame1"_qs, u"Liste generieren..."_qs, this);
    buildLists();
    buildBounds();
    buildGrid();
    layOutFilters();
    QVBoxLayout* rest = Face::column(this, Ueberschrift, Toolbar1);
    rest->addWidget(Frame1);
    rest->addWidget(tblFAusw, 1);
    rest->addWidget(layOutSums());
    connectEvents();
}

void Fangauswertung::buildToolbar() {
    Toolbar1 = new Toolbar(this);
    Toolbar1->addKeys(
        {{u"tbSuch"_qs, u"&Suchen"_qs, u"Tabelle durchsuchen..."_qs, u"suchen"_qs,
          [this] { tbSuch_Click(); }},
         {u"tbAnzLoeschen"_qs, u"&Anz. löschen"_qs, u"Anzeige löschen"_qs, u"anzeige-loeschen"_qs,
          &modFAuswert::AuswertAnzeigeLoeschen},
         {u"tbExcel"_qs, u"&Exceldatei erzeugen"_qs, u"Excel - Datei - FANG.CSV - erzeugen..."_qs,
          u"excel"_qs, [this] { tbExcel_Click(); }},
         {u"tbVorschau"_qs, u"&Druck - Vorschau"_qs, u"Druckvorschau der Fangliste"_qs, u"vorschau"_qs,
          [this] { drucke(u"vorschau"_qs); }},
         {u"tbDruck"_qs, u"Drucken"_qs, u"Aktuelle Auswahl drucken..."_qs, u"drucken"_qs,
          [this] { drucke(u"drucken"_qs); }}});
}

ComboBox* Fangauswertung::addList(const QString& name, QCheckBox* captionedBy) {
    auto* list = new ComboBox(name, ComboBox::Order::AsAdded, ComboBox::Kind::DropDownList, Frame1);
    list->setAccessibleName(captionedBy->text());
    list->setEnabled(false);
    return list;
}

Vergleich Fangauswertung::addBound(const QString& list, const QString& box, const QString& spoken) {
    const Vergleich bound = Vergleich::neu(list, box, spoken, Frame1);
    bound.wert->setAlignment(Qt::AlignRight);
    bound.wert->setKeyFilter(&modRun::FilterZiffern);
    return bound;
}

void Fangauswertung::buildLists() {
    chkArchiv = Face::checkBox(u"chkArchiv"_qs, u"Fangjahr"_qs, Frame1);
    cboFJahr = addList(u"cboFJahr"_qs, chkArchiv);
    chkFMonat = Face::checkBox(u"chkFMonat"_qs, u"Fangmonat..."_qs, Frame1);
    cboFMonat = addList(u"cboFMonat"_qs, chkFMonat);
    for (int month = 1; month <= 12; ++month) cboFMonat->AddItem(modRun::ErmittleMonatsname(month));
    chkFArt = Face::checkBox(u"chkFArt"_qs, u"Fischart..."_qs, Frame1);
    cboFArt = addList(u"cboFArt"_qs, chkFArt);
    chkGName = Face::checkBox(u"chkGName"_qs, u"Gewässer..."_qs, Frame1);
    cboGName = addList(u"cboGName"_qs, chkGName);
}

void Fangauswertung::buildBounds() {
    Label1 = Face::label(u"Label1"_qs, u"- Untergrenze -"_qs, Frame1);
    Label2 = Face::label(u"Label2"_qs, u"- Obergrenze -"_qs, Frame1);
    chkAnzahl = Face::checkBox(u"chkAnzahl"_qs, u"Anzahl..."_qs, Frame1);
    const Vergleich numberLow = addBound(u"cboOptAnz01"_qs, u"txtAnz01"_qs, u"Anzahl, Untergrenze"_qs);
    const Vergleich numberHigh = addBound(u"cboOptAnz02"_qs, u"txtAnz02"_qs, u"Anzahl, Obergrenze"_qs);
    chkGewicht = Face::checkBox(u"chkGewicht"_qs, u"Gewicht i. Gramm..."_qs, Frame1);
    const Vergleich weightLow = addBound(u"cboOptGew01"_qs, u"txtGew01"_qs, u"Gewicht, Untergrenze"_qs);
    const Vergleich weightHigh = addBound(u"cboOptGew02"_qs, u"txtGew02"_qs, u"Gewicht, Obergrenze"_qs);
    // The upper numbers can be typed in until their filter is ticked and cleared for the first time.
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
    auto* form = new QGridLayout(Frame1);
    form->setHorizontalSpacing(Face::gap);
    const auto addLine = [form](int row, int column, QWidget* box, QWidget* list) {
        form->addWidget(box, row, column);
        form->addWidget(list, row, column + 1, 1, 2);
    };
    constexpr int right = 4;
    addLine(0, 0, chkArchiv, cboFJahr);
    addLine(1, 0, chkFArt, cboFArt);
    addLine(0, right, chkFMonat, cboFMonat);
    addLine(1, right, chkGName, cboGName);
    form->addWidget(Label1, 2, 1, 1, 2, Qt::AlignHCenter);
    form->addWidget(Label2, 2, right + 1, 1, 2, Qt::AlignHCenter);
    const auto addBounds = [form](int row, QWidget* box, const Vergleich& low, const Vergleich& high) {
        form->addWidget(box, row, 0);
        form->addWidget(low.zeichen, row, 1);
        form->addWidget(low.wert, row, 2);
        form->addWidget(high.zeichen, row, right + 1);
        form->addWidget(high.wert, row, right + 2);
    };
    addBounds(3, chkAnzahl, {cboOptAnz01, txtAnz01}, {cboOptAnz02, txtAnz02});
    addBounds(4, chkGewicht, {cboOptGew01, txtGew01}, {cboOptGew02, txtGew02});
    form->setColumnMinimumWidth(3, 2 * Face::gap);
    for (const int column : {2, right + 2}) form->setColumnStretch(column, 1);
    Frame1->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void Fangauswertung::buildGrid() {
    tblFAusw = new DataTable(u"tblFAusw"_qs, this);
    tblFAusw->setColumns({{u"FangNr"_qs, 72, true},
                          {u"Fischart"_qs, 176},
                          {u"Gewässer"_qs, 176},
                          {.head = u"Monat"_qs, .width = 88, .order = modRun::Monatsnamen()},
                          {u"Fangjahr"_qs, 72, true},
                          {u"Anzahl"_qs, 72, true},
                          {u"Gew. i. Gramm"_qs, 112, true}});
    tblFAusw->setSortable();
    tblFAusw->setEmptyHint(u"Setzen Sie oben Häkchen vor das, wonach Sie aussuchen wollen.\n"_qs
                           u"Dann drücken Sie „Suchen“."_qs);
    tblFAusw->setAccessibleName(u"Gefundene Fänge"_qs);
    lblAnzDS = Face::label(u"lblAnzDS"_qs, u"Gefunden:"_qs, this);
    lblGefDS = new ValueLabel(u"lblGefDS"_qs, this);
    lblSAnz = Face::label(u"lblSAnz"_qs, u"Summe -Anzahl-:"_qs, this);
    lblSumAnz = new ValueLabel(u"lblSumAnz"_qs, this);
    lblSGew = Face::label(u"lblSGew"_qs, u"Summe -Gewicht-:"_qs, this);
    lblSumGew = new ValueLabel(u"lblSumGew"_qs, this);
    pb = new ProgressBar(u"pb"_qs, this);
    pb->hide();
}

QWidget* Fangauswertung::layOutSums() {
    QHBoxLayout* row = Face::line(this);
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
