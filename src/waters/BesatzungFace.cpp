#include "Besatzung.h"
#include "ComboBox.h"
#include "DataTable.h"
#include "Erfassung.h"
#include "Face.h"
#include "Gitter.h"
#include "Heading.h"
#include "Tastenfilter.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modBesatzList.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

Besatzung::Besatzung()
    : Screen(u"Besatzung"_qs, u"Besatz - Plan"_qs) {
    keepRecord();
    Ueberschrift = new Heading(u"BESATZ - PLAN"_qs, this);
    buildToolbar();
    buildEntry();
    layOutEntry();
    buildGrid();
    QVBoxLayout* rest = Face::column(this, Ueberschrift, Toolbar1);
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
                            .frage = u"ACHTUNG: Besatzungseintrag wirklich löschen ?"_qs,
                            .beiNein = &BesatzAnzeigeLoeschen};
    Toolbar1 = new Toolbar(this);
    // The tool tip of tbExcel does not name the file that is written; the users know it so.
    Toolbar1->addKeys({{u"tbSpeichern"_qs, u"Speichern"_qs, u"Eintrag speichern"_qs, u"speichern"_qs,
                        [=, this] { plan.sichern(*this); }},
                       {u"tbLoeschen"_qs, u"Löschen"_qs, u"Eintrag löschen"_qs, u"loeschen"_qs,
                        [=, this] { plan.entfernen(*this); }},
                       {u"tbAnzLoeschen"_qs, u"Anz. löschen"_qs, u"Anzeige löschen"_qs,
                        u"anzeige-loeschen"_qs, &BesatzAnzeigeLoeschen},
                       {u"tbExcel"_qs, u"&Excel"_qs, u"Excel - Datei - BLIST.csv - erzeugen..."_qs,
                        u"excel"_qs, [this] { tbExcel_Click(); }},
                       {u"tbVorschau"_qs, u"&Druck - Vorsch."_qs, u"Druckvorschau des Besatzungsplan"_qs,
                        u"vorschau"_qs, [this] { drucke(u"vorschau"_qs); }},
                       {u"tbDruck"_qs, u"Drucken"_qs, u"Aktuelle Auswahl drucken..."_qs, u"drucken"_qs,
                        [this] { drucke(u"drucken"_qs); }}});
}

void Besatzung::buildEntry() {
    Frame1 = Face::frame(u"Frame1"_qs, u"Besatzung"_qs, this);
    const auto list = [this](const QString& name) {
        constexpr int shortest = 16;
        auto* box = new ComboBox(name, ComboBox::Order::AsAdded, ComboBox::Kind::DropDownList, Frame1);
        // A long name must not take the room of the boxes at the right.
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(shortest);
        return box;
    };
    Label1 = Face::label(u"Label1"_qs, u"Besatz - Plan f. Jahr:"_qs, Frame1);
    cboBJahr = list(u"cboBJahr"_qs);
    Label3 = Face::label(u"Label3"_qs, u"Fischart:"_qs, Frame1);
    cboFArt = list(u"cboFArt"_qs);
    Label4 = Face::label(u"Label4"_qs, u"Gewässer:"_qs, Frame1);
    cboGName = list(u"cboGName"_qs);
    Label2 = Face::label(u"Label2"_qs, u"Besatz.- Nr:"_qs, Frame1);
    lblBNr = new ValueLabel(u"lblBNr"_qs, Frame1);
    Label5 = Face::label(u"Label5"_qs, u"Zeitpunkt:"_qs, Frame1);
    txtZeit = new TextBox(u"txtZeit"_qs, Frame1);
    Label6 = Face::label(u"Label6"_qs, u"Menge:"_qs, Frame1);
    txtMenge = new TextBox(u"txtMenge"_qs, Frame1);
    txtMenge->setAlignment(Qt::AlignRight);
    txtMenge->setKeyFilter(&modRun::FilterKomma);
    Label7 = Face::label(u"Label7"_qs, u"i. Kg"_qs, Frame1);
}

void Besatzung::layOutEntry() {
    constexpr int right = 3;
    auto* form = new QGridLayout(Frame1);
    form->setHorizontalSpacing(Face::gap);
    Face::addField(form, 0, Label1, cboBJahr);
    Face::addField(form, 1, Label3, cboFArt);
    Face::addField(form, 2, Label4, cboGName);
    Face::addField(form, 0, Label2, lblBNr, right);
    Face::addField(form, 1, Label5, txtZeit, right);
    Face::addField(form, 2, Label6, txtMenge, right);
    form->addWidget(Label7, 2, right + 2);
    form->setColumnMinimumWidth(right - 1, 2 * Face::gap);
    for (const int column : {1, right + 1}) form->setColumnStretch(column, 1);
    txtMenge->setAccessibleName(u"Menge in Kilogramm"_qs);
    Frame1->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void Besatzung::buildGrid() {
    tblBList = new DataTable(u"tblBList"_qs, this);
    tblBList->setColumns({{u"Besatz.-Nr"_qs, 88, true},
                          {u"Fischart"_qs, 176},
                          {u"Gewässer"_qs, 176},
                          {u"Zeitpkt."_qs, 160},
                          {u"Menge i. Kg"_qs, 104, true}});
    tblBList->setAccessibleName(u"Besatz - Plan"_qs);
    tblBList->setEmptyHint(u"Für dieses Jahr steht noch kein Besatz.\n"_qs
                           u"Tragen Sie ihn oben ein und drücken Sie „Speichern“."_qs);
    Label8 = Face::label(u"Label8"_qs, u"Anzahl:"_qs, this);
    lblAnzahl = new ValueLabel(u"lblAnzahl"_qs, this);
    lblAnzahl->setAccessibleName(Label8->text());
    lblAnzahl->setNumeric();
}

QWidget* Besatzung::layOutCount() {
    QHBoxLayout* row = Face::line(this);
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
