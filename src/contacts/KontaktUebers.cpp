#include "KontaktUebers.h"

#include "Conversions.h"
#include "Katego.h"
#include "Kontakt.h"
#include "Meldungen.h"
#include "MsgBox.h"
#include "Rahmen.h"
#include "Screens.h"
#include "SuchKont.h"
#include "Uebersicht.h"
#include "modKatego.h"
#include "modKontakt.h"
#include "modSerienbrief.h"

#include <QToolButton>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void bieteAlleKategorien(ComboBox* combo) {
    modKatego::FuelleKategoCombo(combo);
    combo->insertItem(0, u"Alle"_s);
}

/// Shows the contact of a row modally. Its record is open on that screen and on the overview below it.
/// Returns false, after a message box, if the user may not use the contacts.
bool oeffneMaske(DataTable* grid, int row, bool ausSuche) {
    if (!modKontakt::KontaktZugriff_Erlaubt()) {
        modRun::MeldeKeinZugriff();
        return false;
    }
    Kontakt& maske = the<Kontakt>();
    the<KontaktUebers>().openRecord(grid->cellText(row, 0), row);
    maske.openRecord(grid->cellText(row, 0), row);
    maske.AusSuche = ausSuche;
    modKontakt::loadKontakt(grid, row);
    return true;
}

// The hit stays open until a press in a toolbar: meanwhile the search leaves the focus on its grid.
void oeffneTreffer(SuchKont& suche, int row) { oeffneMaske(suche.tblSuch, row, true); }

} // namespace

KontaktUebers::KontaktUebers()
    : Screen(u"KontaktUebers"_s, u"Kontakt - Übersicht"_s) {
    tblKUebers->setAccessibleName(u"Kontakte nach Kategorien"_s);
    QVBoxLayout* rest = Layout::column(this, Ueberschrift, Toolbar1);
    rest->addWidget(tblKUebers, 1);
    rest->addWidget(Layout::line(this, {Label2, Label1}));

    on(tblKUebers, &DataTable::OnGridCellDown,
       [this](int row, int column) { tblKUebers_OnGridCellDown(row, column); });
    on(tblKUebers, &DataTable::OnGridCellOpen,
       [this](int row, int column) { tblKUebers_OnGridCellOpen(row, column); });
}

Toolbar* KontaktUebers::buildToolbar() {
    return new Toolbar(
        this, {{u"tbKontakt"_s, u"Neuer Kontakt"_s, u"Neuer Kontakt oder neues Mitglied..."_s, u"kontakt"_s,
                [] { the<Kontakt>().ShowModal(); }},
               {u"tbKatego"_s, u"Kategorien bearb."_s, u"Kategorien bearbeiten..."_s, u"kategorie"_s,
                [this] { BearbeiteKategorien(); }},
               {u"tbWord"_s, u"Word-Datei"_s, u"Serienbrief - Datei für Word erzeugen..."_s, u"word"_s,
                [this] { ErzeugeSerienbriefDatei(); }},
               {u"tbSuch"_s, u"Suchen"_s, u"Mitglied suchen..."_s, u"suchen"_s, [this] { Suchen(); }},
               {u"tbMitglList"_s, u"Mitglieder - Liste"_s, u"Mitglieder - Listen erzeugen..."_s, u"liste"_s,
                [] { rahmen()->zeigeMitgliederliste(); }}});
}

void KontaktUebers::Form_Load() { SuchKont::registriere(0, {&bieteAlleKategorien, true, &oeffneTreffer}); }

void KontaktUebers::Form_Deactivate() { unload<SuchKont>(); }

bool KontaktUebers::Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) {
    if (key != Qt::Key_F || modifiers != Qt::ControlModifier) return false;
    Toolbar1->key(u"tbSuch"_s)->click();
    return true;
}

void KontaktUebers::BearbeiteKategorien() { the<Katego>().Show(); }

void KontaktUebers::Suchen() {
    modKontakt::SuchAnzeigeLoeschen();
    the<SuchKont>().ShowModal();
}

void KontaktUebers::ErzeugeSerienbriefDatei() {
    if (!modRun::frage(u"Wollen Sie eine Serienbrief - Datei für Word mit der Bezeichnung - SERI.txt - "_s
                       u"erzeugen ?"_s))
        return modRun::MeldeAbgebrochen();
    tblKUebers->enter({});
    if (tblKUebers->rowCount() < 1) {
        MsgBox(u"Keine Daten zum erzeugen der Datei - SERI.txt - gefunden, der Vorgang wird abgebrochen !"_s,
               vbInformation);
    } else if (std::ranges::count(KategoOffen, true) < 1) {
        // Also reached before the first press in the grid: until then KategoOffen is empty.
        MsgBox(u"Um eine Serienbrief - Datei erzeugen zu können, müssen Sie die gewünschten Kategorien "_s
               u"vorher aufklappen !"_s,
               vbInformation);
    } else {
        modSerienbrief::ErzeugeSeriendatei();
    }
}

void KontaktUebers::tblKUebers_OnGridCellDown(int row, int column) {
    const TableHandle gedrueckt = tblKUebers->enter({});
    KategoOffen.resize(std::size_t(tblKUebers->rowCount()));
    // A press on the row header of a contact opens or closes no category.
    if (gedrueckt.parentRow >= 0)
        tblKUebers->enter(gedrueckt);
    else if (column == DataTable::rowHeaderColumn && row >= 0)
        klappe(row);
}

void KontaktUebers::klappe(int row) {
    const bool oeffnet = !KategoOffen[std::size_t(row)];
    tblKUebers->setCell(row, Uebersicht::spalteZustand, oeffnet ? u"-"_s : u"+"_s);
    if (oeffnet) modKontakt::KategorieAufklappen(row, CLng(tblKUebers->cell(row, Uebersicht::spalteNr)));
    // The file for serial letters must get the contacts of exactly those categories that are seen open.
    tblKUebers->setOpen(row, oeffnet);
    KategoOffen[std::size_t(row)] = oeffnet;
    LetzterKlappZustand = oeffnet;
}

void KontaktUebers::tblKUebers_OnGridCellOpen(int row, int column) {
    if (row >= 0 && column >= 0 && oeffneMaske(tblKUebers, row, false)) Screens::giveUpRecords();
}
