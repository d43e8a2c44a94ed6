#include "ComboBox.h"
#include "DataTable.h"
#include "Face.h"
#include "Fangauswertung.h"
#include "Heading.h"
#include "ProgressBar.h"
#include "Session.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modRun.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

Fangauswertung::Fangauswertung()
    : Screen(u"Fangauswertung"_qs, u"Fangauswertung"_qs) {
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
    Toolbar1->addKey(u"tbSuch"_qs, u"&Suchen"_qs, u"Tabelle durchsuchen..."_qs, u"suchen"_qs);
    Toolbar1->addSeparator();
    Toolbar1->addKey(u"tbAnzLoeschen"_qs, u"&Anz. löschen"_qs, u"Anzeige löschen"_qs, u"anzeige-loeschen"_qs);
    Toolbar1->addSeparator();
    Toolbar1->addKey(u"tbExcel"_qs, u"&Exceldatei erzeugen"_qs, u"Excel - Datei - FANG.CSV - erzeugen..."_qs,
                     u"excel"_qs);
    Toolbar1->addSeparator();
    Toolbar1->addKey(u"tbVorschau"_qs, u"&Druck - Vorschau"_qs, u"Druckvorschau der Fangliste"_qs,
                     u"vorschau"_qs);
    Toolbar1->addSeparator();
    Toolbar1->addKey(u"tbDruck"_qs, u"Drucken"_qs, u"Aktuelle Auswahl drucken..."_qs, u"drucken"_qs);
}

ComboBox* Fangauswertung::addList(const QString& name, QCheckBox* captionedBy) {
    auto* list = new ComboBox(name, ComboBox::Order::AsAdded, ComboBox::Kind::DropDownList, Frame1);
    list->setAccessibleName(captionedBy->text());
    list->setEnabled(false);
    return list;
}

Fangauswertung::Bound Fangauswertung::addBound(const QString& list, const QString& box, const QString& spoken,
                                               bool enabled) {
    Bound bound{new ComboBox(list, ComboBox::Order::AsAdded, ComboBox::Kind::DropDownList, Frame1),
                new TextBox(box, Frame1)};
    for (const QString& comparison : {u"="_qs, u">"_qs, u">="_qs, u"<"_qs, u"<="_qs, u"<>"_qs})
        bound.comparison->AddItem(comparison);
    bound.comparison->setListIndex(-1);
    bound.comparison->setAccessibleName(spoken + u", Vergleich"_qs);
    bound.comparison->setEnabled(false);
    bound.number->setAccessibleName(spoken);
    bound.number->setAlignment(Qt::AlignRight);
    bound.number->setKeyFilter(&modRun::FilterZiffern);
    bound.number->setEnabled(enabled);
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
    const Bound numberLow = addBound(u"cboOptAnz01"_qs, u"txtAnz01"_qs, u"Anzahl, Untergrenze"_qs, false);
    const Bound numberHigh = addBound(u"cboOptAnz02"_qs, u"txtAnz02"_qs, u"Anzahl, Obergrenze"_qs, true);
    chkGewicht = Face::checkBox(u"chkGewicht"_qs, u"Gewicht i. Gramm..."_qs, Frame1);
    const Bound weightLow = addBound(u"cboOptGew01"_qs, u"txtGew01"_qs, u"Gewicht, Untergrenze"_qs, false);
    const Bound weightHigh = addBound(u"cboOptGew02"_qs, u"txtGew02"_qs, u"Gewicht, Obergrenze"_qs, true);
    cboOptAnz01 = numberLow.comparison;
    txtAnz01 = numberLow.number;
    cboOptAnz02 = numberHigh.comparison;
    txtAnz02 = numberHigh.number;
    cboOptGew01 = weightLow.comparison;
    txtGew01 = weightLow.number;
    cboOptGew02 = weightHigh.comparison;
    txtGew02 = weightHigh.number;
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
    const auto addBounds = [form](int row, QWidget* box, const Bound& low, const Bound& high) {
        form->addWidget(box, row, 0);
        form->addWidget(low.comparison, row, 1);
        form->addWidget(low.number, row, 2);
        form->addWidget(high.comparison, row, right + 1);
        form->addWidget(high.number, row, right + 2);
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
                          {u"Monat"_qs, 88},
                          {u"Fangjahr"_qs, 72, true},
                          {u"Anzahl"_qs, 72, true},
                          {u"Gew. i. Gramm"_qs, 112, true}});
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
    auto* line = new QWidget(this);
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Face::gap);
    row->addWidget(pb, 1);
    row->addStretch();
    const auto add = [row](QLabel* caption, ValueLabel* value) {
        row->addWidget(caption);
        row->addWidget(value);
        value->setAccessibleName(caption->text());
    };
    add(lblAnzDS, lblGefDS);
    add(lblSAnz, lblSumAnz);
    add(lblSGew, lblSumGew);
    return line;
}

void Fangauswertung::connectFilter(QCheckBox* box, std::size_t flag, const QVector<QWidget*>& controls) {
    on(box, &QCheckBox::toggled, [flag, controls](bool ticked) {
        for (QWidget* control : controls) control->setEnabled(ticked);
        session().AuswertFilter[flag] = ticked;
    });
}

void Fangauswertung::connectEvents() {
    connectFilter(chkArchiv, 0, {cboFJahr});
    connectFilter(chkFArt, 1, {cboFArt});
    connectFilter(chkGName, 2, {cboGName});
    connectFilter(chkFMonat, 3, {cboFMonat});
    connectFilter(chkAnzahl, 4, {cboOptAnz01, txtAnz01, cboOptAnz02, txtAnz02});
    connectFilter(chkGewicht, 5, {cboOptGew01, txtGew01, cboOptGew02, txtGew02});
    on(Toolbar1, &Toolbar::ButtonClick, [this](const QString& key) { Toolbar1_ButtonClick(key); });
    on(tblFAusw, &DataTable::OnGridCellDown, [this](int row, int) { tblFAusw_OnGridCellDown(row); });
    on(tblFAusw, &DataTable::OnGridCellOpen, [this](int row, int) { tblFAusw_OnGridCellOpen(row); });
    on(tblFAusw, &DataTable::OnGridCellMenu, [this] { tblFAusw_OnGridCellMenu(); });
    modRun::connectGridFocus(tblFAusw);
    // Here the selection also goes when the grid receives the focus.
    on(tblFAusw, &DataTable::OnGridGotFocus,
       [this] { tblFAusw->selectRows(0, tblFAusw->rowCount(), false); });
}
