#include "Arbeit.h"
#include "ComboBox.h"
#include "DataTable.h"
#include "DateBox.h"
#include "Erfassung.h"
#include "Face.h"
#include "Gitter.h"
#include "Heading.h"
#include "MemoBox.h"
#include "Tastenfilter.h"
#include "TextBox.h"
#include "Theme.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modArbeit.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

Arbeit::Arbeit()
    : Screen(u"Arbeit"_qs, u"Arbeitscontrolling - Name des Mitglieds -"_qs) {
    Ueberschrift = new Heading(u"ARBEITSCONTROLLING"_qs, this);
    buildToolbar();
    Frame1 = Face::frame(u"Frame1"_qs, u"Arbeitscontrolling..."_qs, this);
    buildMember();
    buildEntry();
    buildTable();
    layOutMember();
    layOutEntry();
    layOutTable();
    auto* whole = new QGridLayout(Frame1);
    whole->setSpacing(Face::gap);
    whole->addWidget(Frame3, 0, 0, 1, 2);
    whole->addWidget(Frame7, 1, 0);
    whole->addWidget(Frame2, 1, 1);
    whole->setColumnStretch(0, 2);
    whole->setColumnStretch(1, 3);
    whole->setRowStretch(1, 1);
    Face::column(this, Ueberschrift, Toolbar1)->addWidget(Frame1, 1);
    connectEvents();
}

void Arbeit::buildToolbar() {
    using namespace modArbeit;
    const Erfassung buchungen = {.vollstaendig = &PruefeArbEingabe,
                                 .speichere = &SpeicherStunden,
                                 .aendere = &UpdateStunden,
                                 .loesche = &LoescheStunden,
                                 .frage = u"ACHTUNG: Arbeitvorgang wirklich löschen ?"_qs,
                                 .beiNein = &LeereArbEingabe};
    Toolbar1 = new Toolbar(this);
    Toolbar1->addKeys(
        {{u"tbBuchen"_qs, u"&Buchen / Mindern"_qs, u"Buchen v. Arb. - Std. oder Jahresbeitr."_qs,
          u"buchen"_qs, [=, this] { buchungen.sichern(*this); }},
         {u"tbLoeschen"_qs, u"&Löschen"_qs, u"Löscht den ausgewählten Arbeitsvorgang"_qs, u"loeschen"_qs,
          [=, this] { buchungen.entfernen(*this); }},
         {u"tbAnzLoeschen"_qs, u"&Anz. löschen"_qs, u"Anzeige löschen"_qs, u"anzeige-loeschen"_qs,
          &LeereArbEingabe},
         {u"tbVorschau"_qs, u"&Vorschau"_qs, u"Druckvorschau anzeigen..."_qs, u"vorschau"_qs,
          [this] { drucke(u"vorschau"_qs); }},
         {u"tbDruck"_qs, u"&Drucken"_qs, u"Arbeitsübersicht drucken..."_qs, u"drucken"_qs,
          [this] { drucke(u"drucken"_qs); }}});
}

QPushButton* Arbeit::addIconButton(const QString& name, const QString& icon, const QString& tip) {
    QPushButton* button = Face::button(name, QString(), Frame3);
    button->setIcon(Theme::icon(icon));
    button->setIconSize({20, 20});
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    return button;
}

void Arbeit::buildMember() {
    Frame3 = Face::frame(u"Frame3"_qs, u"Ausgewähltes Mitglied..."_qs, Frame1);
    cmdSuch = addIconButton(u"cmdSuch"_qs, u"suchen"_qs, u"Neues Mitglied suchen"_qs);
    cmdMList = addIconButton(u"cmdMList"_qs, u"liste"_qs, u"Zurück zur Mitgliederliste"_qs);
    cmdMList->setEnabled(false);
    Label1 = Face::label(u"Label1"_qs, u"ausgew. Jahr:"_qs, Frame3);
    cboArbJahr =
        new ComboBox(u"cboArbJahr"_qs, ComboBox::Order::AsAdded, ComboBox::Kind::DropDownList, Frame3);
    Label2 = Face::label(u"Label2"_qs, u"Mitgl.-Nr:"_qs, Frame3);
    lblKNr = new ValueLabel(u"lblKNr"_qs, Frame3);
    Label3 = Face::label(u"Label3"_qs, u"Name:"_qs, Frame3);
    lblNName = new ValueLabel(u"lblNName"_qs, Frame3);
    Label4 = Face::label(u"Label4"_qs, u"Vorname:"_qs, Frame3);
    lblVName = new ValueLabel(u"lblVName"_qs, Frame3);
}

void Arbeit::layOutMember() {
    auto* form = new QGridLayout(Frame3);
    form->setHorizontalSpacing(Face::gap);
    form->addWidget(cmdSuch, 0, 0);
    form->addWidget(cmdMList, 1, 0);
    constexpr int middle = 2;
    constexpr int right = 5;
    Face::addField(form, 0, Label1, cboArbJahr, middle);
    Face::addField(form, 1, Label2, lblKNr, middle);
    Face::addField(form, 0, Label3, lblNName, right);
    Face::addField(form, 1, Label4, lblVName, right);
    for (const int between : {middle - 1, right - 1}) form->setColumnMinimumWidth(between, Face::gap);
    form->setColumnStretch(middle + 1, 1);
    form->setColumnStretch(right + 1, 3);
    // A name as long as the file holds it must not make the window wider.
    for (ValueLabel* name : {lblNName, lblVName})
        name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    Frame3->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void Arbeit::buildEntry() {
    constexpr int noteLimit = 255;
    Frame7 = Face::frame(u"Frame7"_qs, u"Buchen oder Editieren..."_qs, Frame1);
    lblArbN = Face::label(u"lblArbN"_qs, u"Arb.-Nr:"_qs, Frame7);
    lblArbNr = new ValueLabel(u"lblArbNr"_qs, Frame7);
    lblDatum = Face::label(u"lblDatum"_qs, u"Arb.- Datum:"_qs, Frame7);
    pvDate = new DateBox(u"pvDate"_qs, Frame7);
    lblArbZeit = Face::label(u"lblArbZeit"_qs, u"geleistete  Arb. - Std:"_qs, Frame7);
    txtArbStd = new TextBox(u"txtArbStd"_qs, Frame7);
    txtArbStd->setAlignment(Qt::AlignRight);
    txtArbStd->setKeyFilter(&modRun::FilterKomma);
    lblStd = Face::label(u"lblStd"_qs, u"Std."_qs, Frame7);
    lblArbNotiz = Face::label(u"lblArbNotiz"_qs, u"Bemerk. / Arb. - Beschreib."_qs, Frame7);
    txtArbNotiz = new MemoBox(u"txtArbNotiz"_qs, Frame7);
    txtArbNotiz->setLimit(noteLimit);
}

void Arbeit::layOutEntry() {
    auto* form = new QGridLayout(Frame7);
    form->setHorizontalSpacing(Face::gap);
    Face::addField(form, 0, lblArbN, lblArbNr);
    Face::addField(form, 1, lblDatum, pvDate);
    Face::addField(form, 2, lblArbZeit, txtArbStd);
    form->addWidget(lblStd, 2, 2);
    form->addWidget(lblArbNotiz, 3, 0, 1, 3);
    form->addWidget(txtArbNotiz, 4, 0, 1, 3);
    form->setColumnStretch(1, 1);
    form->setRowStretch(4, 1);
    lblArbNotiz->setBuddy(txtArbNotiz);
    txtArbNotiz->setAccessibleName(u"Bemerkung, Arbeitsbeschreibung"_qs);
    constexpr int noteHeight = 64;
    txtArbNotiz->setMinimumHeight(noteHeight);
}

void Arbeit::buildTable() {
    Frame2 = Face::frame(u"Frame2"_qs, u"Arb.-Std. Übersicht"_qs, Frame1);
    tblArbStd = new DataTable(u"tblArbStd"_qs, Frame2);
    tblArbStd->setColumns({{u"ArbNr"_qs, 72, true},
                           {u"Mitgl.-Nr"_qs, 80, true},
                           {u"Geleist. Arb.-Std"_qs, 128, true},
                           {u"Datum"_qs, 96}});
    tblArbStd->setAccessibleName(u"Arbeitsstunden des Mitglieds"_qs);
    tblArbStd->setEmptyHint(u"Suchen Sie mit der Lupe ein Mitglied und buchen Sie links seine Stunden."_qs);
    lblGStd = Face::label(u"lblGStd"_qs, u"Ges. - Std geleistet:"_qs, Frame2);
    lblGesStd = new ValueLabel(u"lblGesStd"_qs, Frame2);
    Label10 = Face::label(u"Label10"_qs, u"Std."_qs, Frame2);
    Label6 = Face::label(u"Label6"_qs, u"Pfl.- Std:"_qs, Frame2);
    lblPflStd = new ValueLabel(u"lblPflStd"_qs, Frame2);
    Label8 = Face::label(u"Label8"_qs, u"Std."_qs, Frame2);
    Label9 = Face::label(u"Label9"_qs, u"Erg. SOLL / HABEN:"_qs, Frame2);
    lblErgStd = new ValueLabel(u"lblErgStd"_qs, Frame2);
    Label5 = Face::label(u"Label5"_qs, u"Std."_qs, Frame2);
}

void Arbeit::layOutTable() {
    auto* whole = new QGridLayout(Frame2);
    whole->setHorizontalSpacing(Face::gap);
    constexpr int columns = 4;
    whole->addWidget(tblArbStd, 0, 0, 1, columns);
    whole->setRowStretch(0, 1);
    whole->setColumnStretch(columns - 4, 1);
    int row = 0;
    const auto addSum = [&](QLabel* caption, ValueLabel* sum, QLabel* unit) {
        Face::addField(whole, ++row, caption, sum, 1);
        whole->addWidget(unit, row, columns - 1);
        sum->setNumeric();
    };
    addSum(lblGStd, lblGesStd, Label10);
    addSum(Label6, lblPflStd, Label8);
    addSum(Label9, lblErgStd, Label5);
}

void Arbeit::connectEvents() {
    on(cmdSuch, &QPushButton::clicked, [this](bool) { cmdSuch_Click(); });
    on(cmdMList, &QPushButton::clicked, [this](bool) { cmdMList_Click(); });
    on(tblArbStd, &DataTable::OnGridCellOpen,
       [this](int row, int column) { tblArbStd_OnGridCellOpen(row, column); });
    modRun::connectGridFocus(tblArbStd);
}
