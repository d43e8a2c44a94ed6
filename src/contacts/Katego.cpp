#include "Katego.h"

#include "DataTable.h"
#include "Erfassung.h"
#include "Face.h"
#include "Gitter.h"
#include "Heading.h"
#include "KontaktUebers.h"
#include "Rahmen.h"
#include "Screens.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modFangbuch.h"
#include "modKatego.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QToolButton>

Katego::Katego()
    : Screen(u"Katego"_qs, u"Kontakt - Kategorien"_qs) {
    Ueberschrift = new Heading(u"KONTAKT-KATEGORIEN"_qs, this);
    buildToolbar();
    buildEntry();
    buildTable();
    QVBoxLayout* rest = Face::column(this, Ueberschrift, Toolbar1);
    rest->addWidget(Frame1);
    rest->addWidget(Frame2, 1);

    on(tblKatego, &DataTable::OnGridCellOpen,
       [this](int row, int column) { tblKatego_OnGridCellOpen(row, column); });
    modRun::connectGridFocus(tblKatego);
}

void Katego::buildToolbar() {
    const Erfassung kategorien = {
        .vollstaendig = &modKatego::KategoEingabeOK,
        .speichere = &modKatego::SpeicherKatego,
        .aendere = &modKatego::UpdateKatego,
        .loesche = &modKatego::LoescheKatego,
        .frage = u"ACHTUNG: Kontakt - Referenzen in Kontaktliste werden ebenfalls gelöscht !\r\n"_qs
                 u"Trotzdem löschen ?"_qs,
        // A no clears the catch book; the name stays here, to be saved again if wanted.
        .beiNein = &modFangbuch::FangAnzeigeLoeschen};
    Toolbar1 = new Toolbar(this);
    Face::addRecordKeys(
        Toolbar1, [=, this] { kategorien.sichern(*this); }, [=, this] { kategorien.entfernen(*this); },
        &modKatego::KategoAnzeigeLoeschen);
    Toolbar1->addKeys({{u"tbEsc"_qs, u"&Schließen"_qs, u"Zurück zur Kontakt - Übersicht"_qs, u"schliessen"_qs,
                        [this] { Schliessen(); }}});
}

void Katego::buildEntry() {
    constexpr int nameLimit = 50;
    Frame1 = Face::frame(u"Frame1"_qs, u"Kategorien hinzuf. o. editieren..."_qs, this);
    lblKatN = Face::label(u"lblKatN"_qs, u"Katego. - Nr:"_qs, Frame1);
    lblKategoNr = new ValueLabel(u"lblKategoNr"_qs, Frame1);
    Label1 = Face::label(u"Label1"_qs, u"Kategoriebezeichnung:"_qs, Frame1);
    txtKatego = new TextBox(u"txtKatego"_qs, Frame1);
    txtKatego->setMaxLength(nameLimit);
    auto* form = new QGridLayout(Frame1);
    form->setHorizontalSpacing(Face::gap);
    Face::addField(form, 0, lblKatN, lblKategoNr);
    Face::addField(form, 1, Label1, txtKatego);
    form->setColumnStretch(1, 1);
    Frame1->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void Katego::buildTable() {
    Frame2 = Face::frame(u"Frame2"_qs, u"Aufgenommene Kategorien..."_qs, this);
    tblKatego = new DataTable(u"tblKatego"_qs, Frame2);
    tblKatego->setColumns({{u"Katego.-Nr."_qs, 96, true}, {u"Kategorien"_qs, 400}});
    tblKatego->setAccessibleName(u"Aufgenommene Kategorien"_qs);
    Label2 = Face::label(u"Label2"_qs, u"Anzahl:"_qs, Frame2);
    lblAnzahl = new ValueLabel(u"lblAnzahl"_qs, Frame2);
    lblAnzahl->setAccessibleName(u"Anzahl"_qs);
    lblAnzahl->setNumeric();
    auto* count = new QHBoxLayout;
    count->addStretch();
    count->addWidget(Label2);
    count->addWidget(lblAnzahl);
    auto* column = new QVBoxLayout(Frame2);
    column->addLayout(count);
    column->addWidget(tblKatego, 1);
}

void Katego::Form_Deactivate() {
    tblKatego->selectRows(0, tblKatego->rowCount(), false);
    lblKategoNr->setText(QString());
    txtKatego->setText(QString());
}

void Katego::Form_Paint() { lblAnzahl->setText(QString::number(tblKatego->rowCount())); }

bool Katego::Form_KeyDown(int key, Qt::KeyboardModifiers) {
    if (key != Qt::Key_Escape) return false;
    Toolbar1->key(u"tbEsc"_qs)->click();
    return true;
}

void Katego::Schliessen() {
    modKatego::KategoAnzeigeLoeschen();
    Hide();
    rahmen()->binde(screen<KontaktUebers>());
    screen<KontaktUebers>().Show();
}

void Katego::tblKatego_OnGridCellOpen(int row, int column) {
    if (row < 0) return;
    modKatego::KategoAnzeigeLoeschen();
    modKatego::loadKatego(row, column);
    openRecord(lblKategoNr->text(), row);
}
