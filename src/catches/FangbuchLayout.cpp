#include "ComboBox.h"
#include "DataTable.h"
#include "Erfassung.h"
#include "Fangbuch.h"
#include "Gitter.h"
#include "Heading.h"
#include "Kalendernamen.h"
#include "Layout.h"
#include "MemoBox.h"
#include "ProgressBar.h"
#include "Tastenfilter.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modFangbuch.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

using namespace Qt::StringLiterals;

Fangbuch::Fangbuch()
    : Screen(u"Fangbuch"_s, u"Fangbuch"_s) {
    keepRecord();
    Ueberschrift = new Heading(u"FANGBUCH"_s, this);
    buildToolbar();
    buildEntry();
    layOutEntry();
    buildTable();
    QVBoxLayout* rest = Layout::column(this, Ueberschrift, Toolbar1);
    rest->addWidget(fraNr2);
    rest->addWidget(Frame1, 1);
    connectEvents();
}

void Fangbuch::buildToolbar() {
    using namespace modFangbuch;
    const Erfassung faenge = {.vollstaendig = &FangEingabeVollstaendig,
                              .speichere = &SpeicherFang,
                              .aendere = &UpdateFang,
                              .loesche = &LoescheFang,
                              .frage = u"ACHTUNG: Fangeintrag wirklich löschen ?"_s,
                              .beiNein = &FangAnzeigeLoeschen};
    const auto sichere = [=, this] {
        // The month is checked when txtMonNr loses the focus. F3 and the toolbar leave the focus there.
        txtMonNr_LostFocus();
        faenge.sichern(*this);
    };
    Toolbar1 = new Toolbar(this);
    Toolbar1->addKeys({{u"tbSpeichern"_s, u"&Speichern [ F3 ]"_s, u"Speichern des Eintrages ins Fangbuch"_s,
                        u"speichern"_s, sichere},
                       {u"tbLoeschen"_s, u"&Löschen [ F8 ]"_s, u"Löschen des Eintrages"_s, u"loeschen"_s,
                        [=, this] { faenge.entfernen(*this); }},
                       {u"tbAnzLoeschen"_s, u"&Anz. löschen [ F2 ]"_s, u"Anzeige löschen"_s,
                        u"anzeige-loeschen"_s, &FangAnzeigeLoeschen}});
}

void Fangbuch::buildEntry() {
    constexpr int monthLimit = 2;
    constexpr int noteLimit = 255;
    fraNr2 = Layout::frame(u"fraNr2"_s, u"Einträge..."_s, this);
    lblFArt = Layout::label(u"lblFArt"_s, u"Fischart:"_s, fraNr2);
    cboFArt = new ComboBox(u"cboFArt"_s, fraNr2, ComboBox::Kind::DropDownList, ComboBox::Order::Sorted);
    lblGewaesser = Layout::label(u"lblGewaesser"_s, u"Gewässer:"_s, fraNr2);
    cboGName = new ComboBox(u"cboGName"_s, fraNr2);
    lblAnzGew = Layout::label(u"lblAnzGew"_s, u"Anzahl | Gewicht:"_s, fraNr2);
    txtAnzahl = new TextBox(u"txtAnzahl"_s, fraNr2);
    txtGewicht = new TextBox(u"txtGewicht"_s, fraNr2);
    lblEinheit = Layout::label(u"lblEinheit"_s, u"i. Gramm"_s, fraNr2);
    lblFMonat = Layout::label(u"lblFMonat"_s, u"Fangmonat:"_s, fraNr2);
    txtMonNr = new TextBox(u"txtMonNr"_s, fraNr2, monthLimit);
    txtFangMonat = new TextBox(u"txtFangMonat"_s, fraNr2);
    txtFangMonat->setReadOnly(true);
    txtFangMonat->setFocusPolicy(Qt::ClickFocus);
    lblNotiz = Layout::label(u"lblNotiz"_s, u"Notizen..."_s, fraNr2);
    txtNotiz = new MemoBox(u"txtNotiz"_s, fraNr2, noteLimit);
    lblFJahrBez = Layout::label(u"lblFJahrBez"_s, u"Fangjahr:"_s, fraNr2);
    cboFJahr = new ComboBox(u"cboFJahr"_s, fraNr2);
    lblFNrBez = Layout::label(u"lblFNrBez"_s, u"Fang - Nr:"_s, fraNr2);
    lblFNr = new ValueLabel(u"lblFNr"_s, fraNr2);
    for (TextBox* box : {txtAnzahl, txtGewicht, txtMonNr}) {
        box->setAlignment(Qt::AlignRight);
        box->setSelectAllOnFocus(true);
        box->setKeyFilter(&modRun::FilterZiffern);
    }
}

void Fangbuch::layOutEntry() {
    auto* screen = new QGridLayout(fraNr2);
    screen->setHorizontalSpacing(Layout::gap);
    Layout::addField(screen, 0, lblFJahrBez, cboFJahr);
    Layout::addField(screen, 1, lblFArt, cboFArt);
    Layout::addField(screen, 2, lblGewaesser, cboGName);

    auto* count = new QHBoxLayout;
    count->setSpacing(Layout::gap);
    count->addWidget(txtAnzahl, 1);
    count->addWidget(txtGewicht, 1);
    count->addWidget(lblEinheit);
    screen->addWidget(lblAnzGew, 3, 0);
    screen->addLayout(count, 3, 1);
    auto* month = new QHBoxLayout;
    month->setSpacing(Layout::gap);
    month->addWidget(txtMonNr);
    month->addWidget(txtFangMonat, 1);
    txtMonNr->setFixedWidth(48);
    screen->addWidget(lblFMonat, 4, 0);
    screen->addLayout(month, 4, 1);

    constexpr int noteColumn = 3;
    screen->setColumnMinimumWidth(noteColumn - 1, 2 * Layout::gap);
    auto* number = new QHBoxLayout;
    number->setSpacing(Layout::gap);
    number->addWidget(lblFNrBez);
    number->addWidget(lblFNr, 1);
    screen->addLayout(number, 0, noteColumn);
    screen->addWidget(lblNotiz, 1, noteColumn);
    screen->addWidget(txtNotiz, 2, noteColumn, 3, 1);
    // The note gets the height of the rows beside it. The frame gets no more height than it needs.
    txtNotiz->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    fraNr2->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    screen->setColumnStretch(1, 3);
    screen->setColumnStretch(noteColumn, 4);

    lblAnzGew->setBuddy(txtAnzahl);
    lblFMonat->setBuddy(txtMonNr);
    lblNotiz->setBuddy(txtNotiz);
    txtAnzahl->setAccessibleName(u"Anzahl"_s);
    txtGewicht->setAccessibleName(u"Gewicht in Gramm"_s);
    txtMonNr->setAccessibleName(u"Fangmonat"_s);
    txtFangMonat->setAccessibleName(u"Name des Fangmonats"_s);
    txtNotiz->setAccessibleName(u"Notizen"_s);
    lblFNr->setAccessibleName(u"Fang - Nr"_s);
}

void Fangbuch::buildTable() {
    Frame1 = Layout::frame(u"Frame1"_s, u"Fangbuchtabelle..."_s, this);
    Label2 = Layout::label(u"Label2"_s, u"Fangbucheintr. f. Monat:"_s, Frame1);
    cboSelMonat = new ComboBox(u"cboSelMonat"_s, Frame1);
    for (int month = 1; month <= 12; ++month) cboSelMonat->AddItem(modRun::ErmittleMonatsname(month));
    Label3 = Layout::label(u"Label3"_s, u"Einträge i. Tabelle:"_s, Frame1);
    lblAnzahl = new ValueLabel(u"lblAnzahl"_s, Frame1);
    Label1 = Layout::label(u"Label1"_s, u"Anzahl [gesamt]:"_s, Frame1);
    lblGesAnz = new ValueLabel(u"lblGesAnz"_s, Frame1);
    for (ValueLabel* count : {lblAnzahl, lblGesAnz}) count->setNumeric();
    pb = new ProgressBar(u"pb"_s, Frame1);
    pb->hide();
    tblFList = new DataTable(u"tblFList"_s, Frame1);
    tblFList->setColumns({{u"FangNr"_s, 72, true},
                          {u"Fischart"_s, 200},
                          {u"Gewässer"_s, 200},
                          {u"Monat"_s, 96},
                          {u"Anzahl"_s, 72, true},
                          {u"Gew. i. Gramm"_s, 112, true}});
    tblFList->setAccessibleName(u"Fangbuchtabelle"_s);
    tblFList->setEmptyHint(
        u"In diesem Monat steht noch kein Fang.\nTragen Sie ihn oben ein und drücken Sie F3."_s);
    Label2->setBuddy(cboSelMonat);
    cboSelMonat->setAccessibleName(u"Fangbucheinträge für Monat"_s);
    lblAnzahl->setAccessibleName(u"Einträge in Tabelle"_s);
    lblGesAnz->setAccessibleName(u"Anzahl gesamt"_s);

    auto* selectors = new QHBoxLayout;
    selectors->addWidget(Label2);
    selectors->addWidget(cboSelMonat);
    selectors->addWidget(pb, 1);
    selectors->addStretch();
    selectors->addWidget(Label3);
    selectors->addWidget(lblAnzahl);
    selectors->addSpacing(Layout::gap);
    selectors->addWidget(Label1);
    selectors->addWidget(lblGesAnz);
    auto* column = new QVBoxLayout(Frame1);
    column->addLayout(selectors);
    column->addWidget(tblFList, 1);
}

void Fangbuch::connectEvents() {
    on(cboFJahr, &ComboBox::Click, [this] { Auswahl_Click(true); });
    on(cboSelMonat, &ComboBox::Click, [this] { Auswahl_Click(false); });
    on(txtMonNr, &TextBox::GotFocus, [this] { m_tastenZaehler = 0; });
    on(txtMonNr, &TextBox::KeyPress, [this](int) { txtMonNr_KeyPress(); });
    on(txtMonNr, &TextBox::KeyDone, [this](int) { txtMonNr_KeyDone(); });
    on(txtMonNr, &TextBox::LostFocus, [this] { txtMonNr_LostFocus(); });
    on(txtNotiz, &MemoBox::LostFocus, [this] { cboFArt->setFocus(); });
    on(tblFList, &DataTable::OnGridCellOpen, [this](int row, int) { tblFList_OnGridCellOpen(row); });
    modRun::connectGridFocus(tblFList);
    modRun::leereAuswahlBeiFokus(tblFList);
}
