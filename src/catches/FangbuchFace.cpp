#include "ComboBox.h"
#include "DataTable.h"
#include "Erfassung.h"
#include "Face.h"
#include "Fangbuch.h"
#include "Gitter.h"
#include "Heading.h"
#include "Kalendernamen.h"
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

Fangbuch::Fangbuch()
    : Screen(u"Fangbuch"_qs, u"Fangbuch"_qs) {
    keepRecord();
    Ueberschrift = new Heading(u"FANGBUCH"_qs, this);
    buildToolbar();
    buildEntry();
    layOutEntry();
    buildTable();
    QVBoxLayout* rest = Face::column(this, Ueberschrift, Toolbar1);
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
                              .frage = u"ACHTUNG: Fangeintrag wirklich löschen ?"_qs,
                              .beiNein = &FangAnzeigeLoeschen};
    const auto sichere = [=, this] {
        // F3 and the toolbar leave the caret where it is, so the month may not have been checked yet.
        txtMonNr_LostFocus();
        faenge.sichern(*this);
    };
    Toolbar1 = new Toolbar(this);
    Toolbar1->addKeys({{u"tbSpeichern"_qs, u"&Speichern [ F3 ]"_qs,
                        u"Speichern des Eintrages ins Fangbuch"_qs, u"speichern"_qs, sichere},
                       {u"tbLoeschen"_qs, u"&Löschen [ F8 ]"_qs, u"Löschen des Eintrages"_qs, u"loeschen"_qs,
                        [=, this] { faenge.entfernen(*this); }},
                       {u"tbAnzLoeschen"_qs, u"&Anz. löschen [ F2 ]"_qs, u"Anzeige löschen"_qs,
                        u"anzeige-loeschen"_qs, &FangAnzeigeLoeschen}});
}

void Fangbuch::buildEntry() {
    constexpr int monthLimit = 2;
    constexpr int noteLimit = 255;
    fraNr2 = Face::frame(u"fraNr2"_qs, u"Einträge..."_qs, this);
    lblFArt = Face::label(u"lblFArt"_qs, u"Fischart:"_qs, fraNr2);
    cboFArt = new ComboBox(u"cboFArt"_qs, ComboBox::Order::Sorted, ComboBox::Kind::DropDownList, fraNr2);
    lblGewaesser = Face::label(u"lblGewaesser"_qs, u"Gewässer:"_qs, fraNr2);
    cboGName = new ComboBox(u"cboGName"_qs, ComboBox::Order::AsAdded, ComboBox::Kind::DropDownList, fraNr2);
    lblAnzGew = Face::label(u"lblAnzGew"_qs, u"Anzahl | Gewicht:"_qs, fraNr2);
    txtAnzahl = new TextBox(u"txtAnzahl"_qs, fraNr2);
    txtGewicht = new TextBox(u"txtGewicht"_qs, fraNr2);
    lblEinheit = Face::label(u"lblEinheit"_qs, u"i. Gramm"_qs, fraNr2);
    lblFMonat = Face::label(u"lblFMonat"_qs, u"Fangmonat:"_qs, fraNr2);
    txtMonNr = new TextBox(u"txtMonNr"_qs, fraNr2);
    txtMonNr->setMaxLength(monthLimit);
    txtFangMonat = new TextBox(u"txtFangMonat"_qs, fraNr2);
    txtFangMonat->setReadOnly(true);
    txtFangMonat->setFocusPolicy(Qt::ClickFocus);
    lblNotiz = Face::label(u"lblNotiz"_qs, u"Notizen..."_qs, fraNr2);
    txtNotiz = new MemoBox(u"txtNotiz"_qs, fraNr2);
    txtNotiz->setLimit(noteLimit);
    lblFJahrBez = Face::label(u"lblFJahrBez"_qs, u"Fangjahr:"_qs, fraNr2);
    cboFJahr = new ComboBox(u"cboFJahr"_qs, ComboBox::Order::AsAdded, ComboBox::Kind::DropDownList, fraNr2);
    lblFNrBez = Face::label(u"lblFNrBez"_qs, u"Fang - Nr:"_qs, fraNr2);
    lblFNr = new ValueLabel(u"lblFNr"_qs, fraNr2);
    for (TextBox* box : {txtAnzahl, txtGewicht, txtMonNr}) {
        box->setAlignment(Qt::AlignRight);
        box->setSelectAllOnFocus(true);
        box->setKeyFilter(&modRun::FilterZiffern);
    }
}

void Fangbuch::layOutEntry() {
    auto* form = new QGridLayout(fraNr2);
    form->setHorizontalSpacing(Face::gap);
    Face::addField(form, 0, lblFJahrBez, cboFJahr);
    Face::addField(form, 1, lblFArt, cboFArt);
    Face::addField(form, 2, lblGewaesser, cboGName);

    auto* count = new QHBoxLayout;
    count->setSpacing(Face::gap);
    count->addWidget(txtAnzahl, 1);
    count->addWidget(txtGewicht, 1);
    count->addWidget(lblEinheit);
    form->addWidget(lblAnzGew, 3, 0);
    form->addLayout(count, 3, 1);
    auto* month = new QHBoxLayout;
    month->setSpacing(Face::gap);
    month->addWidget(txtMonNr);
    month->addWidget(txtFangMonat, 1);
    txtMonNr->setFixedWidth(48);
    form->addWidget(lblFMonat, 4, 0);
    form->addLayout(month, 4, 1);

    constexpr int noteColumn = 3;
    form->setColumnMinimumWidth(noteColumn - 1, 2 * Face::gap);
    auto* number = new QHBoxLayout;
    number->setSpacing(Face::gap);
    number->addWidget(lblFNrBez);
    number->addWidget(lblFNr, 1);
    form->addLayout(number, 0, noteColumn);
    form->addWidget(lblNotiz, 1, noteColumn);
    form->addWidget(txtNotiz, 2, noteColumn, 3, 1);
    // The note takes the height of the rows beside it, and the frame no more than it needs.
    txtNotiz->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    fraNr2->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    form->setColumnStretch(1, 3);
    form->setColumnStretch(noteColumn, 4);

    lblAnzGew->setBuddy(txtAnzahl);
    lblFMonat->setBuddy(txtMonNr);
    lblNotiz->setBuddy(txtNotiz);
    txtAnzahl->setAccessibleName(u"Anzahl"_qs);
    txtGewicht->setAccessibleName(u"Gewicht in Gramm"_qs);
    txtMonNr->setAccessibleName(u"Fangmonat"_qs);
    txtFangMonat->setAccessibleName(u"Name des Fangmonats"_qs);
    txtNotiz->setAccessibleName(u"Notizen"_qs);
    lblFNr->setAccessibleName(u"Fang - Nr"_qs);
}

void Fangbuch::buildTable() {
    Frame1 = Face::frame(u"Frame1"_qs, u"Fangbuchtabelle..."_qs, this);
    Label2 = Face::label(u"Label2"_qs, u"Fangbucheintr. f. Monat:"_qs, Frame1);
    cboSelMonat =
        new ComboBox(u"cboSelMonat"_qs, ComboBox::Order::AsAdded, ComboBox::Kind::DropDownList, Frame1);
    for (int month = 1; month <= 12; ++month) cboSelMonat->AddItem(modRun::ErmittleMonatsname(month));
    Label3 = Face::label(u"Label3"_qs, u"Einträge i. Tabelle:"_qs, Frame1);
    lblAnzahl = new ValueLabel(u"lblAnzahl"_qs, Frame1);
    Label1 = Face::label(u"Label1"_qs, u"Anzahl [gesamt]:"_qs, Frame1);
    lblGesAnz = new ValueLabel(u"lblGesAnz"_qs, Frame1);
    for (ValueLabel* count : {lblAnzahl, lblGesAnz}) count->setNumeric();
    pb = new ProgressBar(u"pb"_qs, Frame1);
    pb->hide();
    tblFList = new DataTable(u"tblFList"_qs, Frame1);
    tblFList->setColumns({{u"FangNr"_qs, 72, true},
                          {u"Fischart"_qs, 200},
                          {u"Gewässer"_qs, 200},
                          {u"Monat"_qs, 96},
                          {u"Anzahl"_qs, 72, true},
                          {u"Gew. i. Gramm"_qs, 112, true}});
    tblFList->setAccessibleName(u"Fangbuchtabelle"_qs);
    tblFList->setEmptyHint(
        u"In diesem Monat steht noch kein Fang.\nTragen Sie ihn oben ein und drücken Sie F3."_qs);
    Label2->setBuddy(cboSelMonat);
    cboSelMonat->setAccessibleName(u"Fangbucheinträge für Monat"_qs);
    lblAnzahl->setAccessibleName(u"Einträge in Tabelle"_qs);
    lblGesAnz->setAccessibleName(u"Anzahl gesamt"_qs);

    auto* selectors = new QHBoxLayout;
    selectors->addWidget(Label2);
    selectors->addWidget(cboSelMonat);
    selectors->addWidget(pb, 1);
    selectors->addStretch();
    selectors->addWidget(Label3);
    selectors->addWidget(lblAnzahl);
    selectors->addSpacing(Face::gap);
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
