#include "Katego.h"

#include "Erfassung.h"
#include "Gitter.h"
#include "KontaktUebers.h"
#include "Screens.h"
#include "modFangbuch.h"
#include "modKatego.h"

#include <QToolButton>

using namespace Qt::StringLiterals;

Katego::Katego()
    : Screen(u"Katego"_s, u"Kontakt - Kategorien"_s) {
    layOutEntry();
    layOutTable();
    QVBoxLayout* rest = Layout::column(this, Ueberschrift, Toolbar1);
    rest->addWidget(Frame1);
    rest->addWidget(Frame2, 1);
    on(tblKatego, &DataTable::OnGridCellOpen, [this](int row, int) { tblKatego_OnGridCellOpen(row); });
    modRun::connectGridFocus(tblKatego);
}

Toolbar* Katego::buildToolbar() {
    const Erfassung kategorien = {
        .vollstaendig = &modKatego::KategoEingabeOK,
        .speichere = &modKatego::SpeicherKatego,
        .aendere = &modKatego::UpdateKatego,
        .loesche = &modKatego::LoescheKatego,
        .frage = u"ACHTUNG: Kontakt - Referenzen in Kontaktliste werden ebenfalls gelöscht !\r\n"_s
                 u"Trotzdem löschen ?"_s,
        // "No" clears the catch book, not this screen: the name stays and can be saved again.
        .beiNein = &modFangbuch::FangAnzeigeLoeschen};
    Toolbar* keys = Layout::recordToolbar(
        this, [=, this] { kategorien.sichern(*this); }, [=, this] { kategorien.entfernen(*this); },
        &modKatego::KategoAnzeigeLoeschen);
    keys->addKeys({{u"tbEsc"_s, u"&Schließen"_s, u"Zurück zur Kontakt - Übersicht"_s, u"schliessen"_s,
                    [this] { Schliessen(); }}});
    return keys;
}

void Katego::layOutEntry() {
    QGridLayout* screen = Layout::form(Frame1);
    Layout::addFields(screen, {{lblKatN, lblKategoNr}, {Label1, txtKatego}});
    screen->setColumnStretch(1, 1);
    Frame1->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void Katego::layOutTable() {
    tblKatego->setColumns({{u"Katego.-Nr."_s, 96, true}, {u"Kategorien"_s, 400}});
    tblKatego->setAccessibleName(u"Aufgenommene Kategorien"_s);
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
    tblKatego->deselectRows(tblKatego->rowCount());
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
    the<KontaktUebers>().Show();
}

void Katego::tblKatego_OnGridCellOpen(int row) {
    modKatego::KategoAnzeigeLoeschen();
    modKatego::loadKatego(row);
    openRecord(lblKategoNr->text(), row);
}
