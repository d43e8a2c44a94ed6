#include "Arbeit.h"
#include "ComboBox.h"
#include "DataTable.h"
#include "DateBox.h"
#include "Erfassung.h"
#include "Gitter.h"
#include "Heading.h"
#include "Layout.h"
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

using namespace Qt::StringLiterals;

Arbeit::Arbeit()
    : Screen(u"Arbeit"_s, u"Arbeitscontrolling - Name des Mitglieds -"_s) {
    Ueberschrift = new Heading(u"ARBEITSCONTROLLING"_s, this);
    buildToolbar();
    Frame1 = Layout::frame(u"Frame1"_s, u"Arbeitscontrolling..."_s, this);
    buildMember();
    buildEntry();
    buildTable();
    layOutMember();
    layOutEntry();
    layOutTable();
    auto* whole = new QGridLayout(Frame1);
    whole->setSpacing(Layout::gap);
    whole->addWidget(Frame3, 0, 0, 1, 2);
    whole->addWidget(Frame7, 1, 0);
    whole->addWidget(Frame2, 1, 1);
    whole->setColumnStretch(0, 2);
    whole->setColumnStretch(1, 3);
    whole->setRowStretch(1, 1);
    Layout::column(this, Ueberschrift, Toolbar1)->addWidget(Frame1, 1);
    connectEvents();
}

void Arbeit::buildToolbar() {
    using namespace modArbeit;
    const Erfassung buchungen = {.vollstaendig = &PruefeArbEingabe,
                                 .speichere = &SpeicherStunden,
                                 .aendere = &UpdateStunden,
                                 .loesche = &LoescheStunden,
                                 .frage = u"ACHTUNG: Arbeitvorgang wirklich löschen ?"_s,
                                 .beiNein = &LeereArbEingabe};
    Toolbar1 = new Toolbar(this);
    Toolbar1->addKeys({{u"tbBuchen"_s, u"&Buchen / Mindern"_s, u"Buchen v. Arb. - Std. oder Jahresbeitr."_s,
                        u"buchen"_s, [=, this] { buchungen.sichern(*this); }},
                       {u"tbLoeschen"_s, u"&Löschen"_s, u"Löscht den ausgewählten Arbeitsvorgang"_s,
                        u"loeschen"_s, [=, this] { buchungen.entfernen(*this); }},
                       {u"tbAnzLoeschen"_s, u"&Anz. löschen"_s, u"Anzeige löschen"_s, u"anzeige-loeschen"_s,
                        &LeereArbEingabe},
                       {u"tbVorschau"_s, u"&Vorschau"_s, u"Druckvorschau anzeigen..."_s, u"vorschau"_s,
                        [this] { drucke(u"vorschau"_s); }},
                       {u"tbDruck"_s, u"&Drucken"_s, u"Arbeitsübersicht drucken..."_s, u"drucken"_s,
                        [this] { drucke(u"drucken"_s); }}});
}

QPushButton* Arbeit::addIconButton(const QString& name, const QString& icon, const QString& tip) {
    QPushButton* button = Layout::button(name, QString(), Frame3);
    button->setIcon(Theme::icon(icon));
    button->setIconSize({20, 20});
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    return button;
}

void Arbeit::buildMember() {
    Frame3 = Layout::frame(u"Frame3"_s, u"Ausgewähltes Mitglied..."_s, Frame1);
    cmdSuch = addIconButton(u"cmdSuch"_s, u"suchen"_s, u"Neues Mitglied suchen"_s);
    cmdMList = addIconButton(u"cmdMList"_s, u"liste"_s, u"Zurück zur Mitgliederliste"_s);
    cmdMList->setEnabled(false);
    Label1 = Layout::label(u"Label1"_s, u"ausgew. Jahr:"_s, Frame3);
    cboArbJahr = new ComboBox(u"cboArbJahr"_s, Frame3);
    Label2 = Layout::label(u"Label2"_s, u"Mitgl.-Nr:"_s, Frame3);
    lblKNr = new ValueLabel(u"lblKNr"_s, Frame3);
    Label3 = Layout::label(u"Label3"_s, u"Name:"_s, Frame3);
    lblNName = new ValueLabel(u"lblNName"_s, Frame3);
    Label4 = Layout::label(u"Label4"_s, u"Vorname:"_s, Frame3);
    lblVName = new ValueLabel(u"lblVName"_s, Frame3);
}

void Arbeit::layOutMember() {
    auto* screen = new QGridLayout(Frame3);
    screen->setHorizontalSpacing(Layout::gap);
    screen->addWidget(cmdSuch, 0, 0);
    screen->addWidget(cmdMList, 1, 0);
    constexpr int middle = 2;
    constexpr int right = 5;
    Layout::addField(screen, 0, Label1, cboArbJahr, middle);
    Layout::addField(screen, 1, Label2, lblKNr, middle);
    Layout::addField(screen, 0, Label3, lblNName, right);
    Layout::addField(screen, 1, Label4, lblVName, right);
    for (const int between : {middle - 1, right - 1}) screen->setColumnMinimumWidth(between, Layout::gap);
    screen->setColumnStretch(middle + 1, 1);
    screen->setColumnStretch(right + 1, 3);
    // A long name must not make the window wider.
    for (ValueLabel* name : {lblNName, lblVName})
        name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    Frame3->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void Arbeit::buildEntry() {
    constexpr int noteLimit = 255;
    Frame7 = Layout::frame(u"Frame7"_s, u"Buchen oder Editieren..."_s, Frame1);
    lblArbN = Layout::label(u"lblArbN"_s, u"Arb.-Nr:"_s, Frame7);
    lblArbNr = new ValueLabel(u"lblArbNr"_s, Frame7);
    lblDatum = Layout::label(u"lblDatum"_s, u"Arb.- Datum:"_s, Frame7);
    pvDate = new DateBox(u"pvDate"_s, Frame7);
    lblArbZeit = Layout::label(u"lblArbZeit"_s, u"geleistete  Arb. - Std:"_s, Frame7);
    txtArbStd = new TextBox(u"txtArbStd"_s, Frame7);
    txtArbStd->setAlignment(Qt::AlignRight);
    txtArbStd->setKeyFilter(&modRun::FilterKomma);
    lblStd = Layout::label(u"lblStd"_s, u"Std."_s, Frame7);
    lblArbNotiz = Layout::label(u"lblArbNotiz"_s, u"Bemerk. / Arb. - Beschreib."_s, Frame7);
    txtArbNotiz = new MemoBox(u"txtArbNotiz"_s, Frame7, noteLimit);
}

void Arbeit::layOutEntry() {
    auto* screen = new QGridLayout(Frame7);
    screen->setHorizontalSpacing(Layout::gap);
    Layout::addField(screen, 0, lblArbN, lblArbNr);
    Layout::addField(screen, 1, lblDatum, pvDate);
    Layout::addField(screen, 2, lblArbZeit, txtArbStd);
    screen->addWidget(lblStd, 2, 2);
    screen->addWidget(lblArbNotiz, 3, 0, 1, 3);
    screen->addWidget(txtArbNotiz, 4, 0, 1, 3);
    screen->setColumnStretch(1, 1);
    screen->setRowStretch(4, 1);
    lblArbNotiz->setBuddy(txtArbNotiz);
    txtArbNotiz->setAccessibleName(u"Bemerkung, Arbeitsbeschreibung"_s);
    constexpr int noteHeight = 64;
    txtArbNotiz->setMinimumHeight(noteHeight);
}

void Arbeit::buildTable() {
    Frame2 = Layout::frame(u"Frame2"_s, u"Arb.-Std. Übersicht"_s, Frame1);
    tblArbStd = new DataTable(u"tblArbStd"_s, Frame2);
    tblArbStd->setColumns({{u"ArbNr"_s, 72, true},
                           {u"Mitgl.-Nr"_s, 80, true},
                           {u"Geleist. Arb.-Std"_s, 128, true},
                           {u"Datum"_s, 96}});
    tblArbStd->setAccessibleName(u"Arbeitsstunden des Mitglieds"_s);
    tblArbStd->setEmptyHint(u"Suchen Sie mit der Lupe ein Mitglied und buchen Sie links seine Stunden."_s);
    lblGStd = Layout::label(u"lblGStd"_s, u"Ges. - Std geleistet:"_s, Frame2);
    lblGesStd = new ValueLabel(u"lblGesStd"_s, Frame2);
    Label10 = Layout::label(u"Label10"_s, u"Std."_s, Frame2);
    Label6 = Layout::label(u"Label6"_s, u"Pfl.- Std:"_s, Frame2);
    lblPflStd = new ValueLabel(u"lblPflStd"_s, Frame2);
    Label8 = Layout::label(u"Label8"_s, u"Std."_s, Frame2);
    Label9 = Layout::label(u"Label9"_s, u"Erg. SOLL / HABEN:"_s, Frame2);
    lblErgStd = new ValueLabel(u"lblErgStd"_s, Frame2);
    Label5 = Layout::label(u"Label5"_s, u"Std."_s, Frame2);
}

void Arbeit::layOutTable() {
    auto* whole = new QGridLayout(Frame2);
    whole->setHorizontalSpacing(Layout::gap);
    constexpr int columns = 4;
    whole->addWidget(tblArbStd, 0, 0, 1, columns);
    whole->setRowStretch(0, 1);
    whole->setColumnStretch(columns - 4, 1);
    int row = 0;
    const auto addSum = [&](QLabel* caption, ValueLabel* sum, QLabel* unit) {
        Layout::addField(whole, ++row, caption, sum, 1);
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
