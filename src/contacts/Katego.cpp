#include "Katego.h"

#include "DataTable.h"
#include "Erfassung.h"
#include "Gitter.h"
#include "Heading.h"
#include "KontaktUebers.h"
#include "Layout.h"
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

using namespace Qt::StringLiterals;

Katego::Katego()
    : Screen(u"Katego"_s, u"Kontakt - Kategorien"_s) {
    Ueberschrift = new Heading(u"KONTAKT-KATEGORIEN"_s, this);
    buildToolbar();
    buildEntry();
    buildTable();
    QVBoxLayout* rest = Layout::column(this, Ueberschrift, Toolbar1);
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
        .frage = u"ACHTUNG: Kontakt - Referenzen in Kontaktliste werden ebenfalls gelöscht !\r\n"_s
                 u"Trotzdem löschen ?"_s,
        // "No" clears the catch book, not this screen: the name stays and can be saved again.
        .beiNein = &modFangbuch::FangAnzeigeLoeschen};
    Toolbar1 = Layout::recordToolbar(
        this, [=, this] { kategorien.sichern(*this); }, [=, this] { kategorien.entfernen(*this); },
        &modKatego::KategoAnzeigeLoeschen);
    Toolbar1->addKeys({{u"tbEsc"_s, u"&Schließen"_s, u"Zurück zur Kontakt - Übersicht"_s, u"schliessen"_s,
                        [this] { Schliessen(); }}});
}

void Katego::buildEntry() {
    constexpr int nameLimit = 50;
    Frame1 = Layout::frame(u"Frame1"_s, u"Kategorien hinzuf. o. editieren..."_s, this);
    lblKatN = Layout::label(u"lblKatN"_s, u"Katego. - Nr:"_s, Frame1);
    lblKategoNr = new ValueLabel(u"lblKategoNr"_s, Frame1);
    Label1 = Layout::label(u"Label1"_s, u"Kategoriebezeichnung:"_s, Frame1);
    txtKatego = new TextBox(u"txtKatego"_s, Frame1);
    txtKatego->setMaxLength(nameLimit);
    auto* screen = new QGridLayout(Frame1);
    screen->setHorizontalSpacing(Layout::gap);
    Layout::addField(screen, 0, lblKatN, lblKategoNr);
    Layout::addField(screen, 1, Label1, txtKatego);
    screen->setColumnStretch(1, 1);
    Frame1->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void Katego::buildTable() {
    Frame2 = Layout::frame(u"Frame2"_s, u"Aufgenommene Kategorien..."_s, this);
    tblKatego = new DataTable(u"tblKatego"_s, Frame2);
    tblKatego->setColumns({{u"Katego.-Nr."_s, 96, true}, {u"Kategorien"_s, 400}});
    tblKatego->setAccessibleName(u"Aufgenommene Kategorien"_s);
    Label2 = Layout::label(u"Label2"_s, u"Anzahl:"_s, Frame2);
    lblAnzahl = new ValueLabel(u"lblAnzahl"_s, Frame2);
    lblAnzahl->setAccessibleName(u"Anzahl"_s);
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
    Toolbar1->key(u"tbEsc"_s)->click();
    return true;
}

void Katego::Schliessen() {
    modKatego::KategoAnzeigeLoeschen();
    Hide();
    rahmen()->binde(the<KontaktUebers>());
    the<KontaktUebers>().Show();
}

void Katego::tblKatego_OnGridCellOpen(int row, int column) {
    if (row < 0) return;
    modKatego::KategoAnzeigeLoeschen();
    modKatego::loadKatego(row, column);
    openRecord(lblKategoNr->text(), row);
}
