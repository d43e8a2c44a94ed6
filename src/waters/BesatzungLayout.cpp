#include "Besatzung.h"
#include "ComboBox.h"
#include "DataTable.h"
#include "Erfassung.h"
#include "Gitter.h"
#include "Heading.h"
#include "Layout.h"
#include "Tastenfilter.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modBesatzList.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

using namespace Qt::StringLiterals;

Besatzung::Besatzung()
    : Screen(u"Besatzung"_s, u"Besatz - Plan"_s) {
    keepRecord();
    Ueberschrift = new Heading(u"BESATZ - PLAN"_s, this);
    buildToolbar();
    buildEntry();
    layOutEntry();
    buildGrid();
    QVBoxLayout* rest = Layout::column(this, Ueberschrift, Toolbar1);
    rest->addWidget(Frame1);
    rest->addWidget(tblBList, 1);
    rest->addWidget(layOutCount());
    connectEvents();
}

void Besatzung::buildToolbar() {
    using namespace modBesatzList;
    const Erfassung plan = {.vollstaendig = &BesatzEingabeVollstaendig,
                            .speichere = &SpeicherEintrag,
                            .aendere = &UpdateEintrag,
                            .loesche = &LoescheEintrag,
                            .frage = u"ACHTUNG: Besatzungseintrag wirklich löschen ?"_s,
                            .beiNein = &BesatzAnzeigeLoeschen};
    Toolbar1 = new Toolbar(this);
    // The tool tip of tbExcel names BLIST.csv, but the file is BPLAN.csv. Users know the text, so keep it.
    Toolbar1->addKeys({{u"tbSpeichern"_s, u"Speichern"_s, u"Eintrag speichern"_s, u"speichern"_s,
                        [=, this] { plan.sichern(*this); }},
                       {u"tbLoeschen"_s, u"Löschen"_s, u"Eintrag löschen"_s, u"loeschen"_s,
                        [=, this] { plan.entfernen(*this); }},
                       {u"tbAnzLoeschen"_s, u"Anz. löschen"_s, u"Anzeige löschen"_s, u"anzeige-loeschen"_s,
                        &BesatzAnzeigeLoeschen},
                       {u"tbExcel"_s, u"&Excel"_s, u"Excel - Datei - BLIST.csv - erzeugen..."_s, u"excel"_s,
                        [this] { tbExcel_Click(); }},
                       {u"tbVorschau"_s, u"&Druck - Vorsch."_s, u"Druckvorschau des Besatzungsplan"_s,
                        u"vorschau"_s, [this] { drucke(u"vorschau"_s); }},
                       {u"tbDruck"_s, u"Drucken"_s, u"Aktuelle Auswahl drucken..."_s, u"drucken"_s,
                        [this] { drucke(u"drucken"_s); }}});
}

void Besatzung::buildEntry() {
    Frame1 = Layout::frame(u"Frame1"_s, u"Besatzung"_s, this);
    const auto list = [this](const QString& name) {
        constexpr int shortest = 16;
        auto* box = new ComboBox(name, Frame1);
        // A long name must not take the space of the boxes at the right.
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(shortest);
        return box;
    };
    Label1 = Layout::label(u"Label1"_s, u"Besatz - Plan f. Jahr:"_s, Frame1);
    cboBJahr = list(u"cboBJahr"_s);
    Label3 = Layout::label(u"Label3"_s, u"Fischart:"_s, Frame1);
    cboFArt = list(u"cboFArt"_s);
    Label4 = Layout::label(u"Label4"_s, u"Gewässer:"_s, Frame1);
    cboGName = list(u"cboGName"_s);
    Label2 = Layout::label(u"Label2"_s, u"Besatz.- Nr:"_s, Frame1);
    lblBNr = new ValueLabel(u"lblBNr"_s, Frame1);
    Label5 = Layout::label(u"Label5"_s, u"Zeitpunkt:"_s, Frame1);
    txtZeit = new TextBox(u"txtZeit"_s, Frame1);
    Label6 = Layout::label(u"Label6"_s, u"Menge:"_s, Frame1);
    txtMenge = new TextBox(u"txtMenge"_s, Frame1);
    txtMenge->setAlignment(Qt::AlignRight);
    txtMenge->setKeyFilter(&modRun::FilterKomma);
    Label7 = Layout::label(u"Label7"_s, u"i. Kg"_s, Frame1);
}

void Besatzung::layOutEntry() {
    constexpr int right = 3;
    auto* screen = new QGridLayout(Frame1);
    screen->setHorizontalSpacing(Layout::gap);
    Layout::addField(screen, 0, Label1, cboBJahr);
    Layout::addField(screen, 1, Label3, cboFArt);
    Layout::addField(screen, 2, Label4, cboGName);
    Layout::addField(screen, 0, Label2, lblBNr, right);
    Layout::addField(screen, 1, Label5, txtZeit, right);
    Layout::addField(screen, 2, Label6, txtMenge, right);
    screen->addWidget(Label7, 2, right + 2);
    screen->setColumnMinimumWidth(right - 1, 2 * Layout::gap);
    for (const int column : {1, right + 1}) screen->setColumnStretch(column, 1);
    txtMenge->setAccessibleName(u"Menge in Kilogramm"_s);
    Frame1->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void Besatzung::buildGrid() {
    tblBList = new DataTable(u"tblBList"_s, this);
    tblBList->setColumns({{u"Besatz.-Nr"_s, 88, true},
                          {u"Fischart"_s, 176},
                          {u"Gewässer"_s, 176},
                          {u"Zeitpkt."_s, 160},
                          {u"Menge i. Kg"_s, 104, true}});
    tblBList->setAccessibleName(u"Besatz - Plan"_s);
    tblBList->setEmptyHint(u"Für dieses Jahr steht noch kein Besatz.\n"_s
                           u"Tragen Sie ihn oben ein und drücken Sie „Speichern“."_s);
    Label8 = Layout::label(u"Label8"_s, u"Anzahl:"_s, this);
    lblAnzahl = new ValueLabel(u"lblAnzahl"_s, this);
    lblAnzahl->setAccessibleName(Label8->text());
    lblAnzahl->setNumeric();
}

QWidget* Besatzung::layOutCount() {
    QHBoxLayout* row = Layout::line(this);
    row->addStretch();
    row->addWidget(Label8);
    row->addWidget(lblAnzahl);
    return row->parentWidget();
}

void Besatzung::connectEvents() {
    on(cboBJahr, &ComboBox::Click, [this] { cboBJahr_Click(); });
    on(tblBList, &DataTable::OnGridCellOpen, [this](int row, int) { tblBList_OnGridCellOpen(row); });
    modRun::connectGridFocus(tblBList);
    modRun::leereAuswahlBeiFokus(tblBList);
}
