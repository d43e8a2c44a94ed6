#include "modBasis.h"

#include "Basis.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "Datensatz.h"
#include "Eingaben.h"
#include "MsgBox.h"
#include "Screens.h"

using namespace Qt::StringLiterals;

// Message boxes name a routine with the table: SpeicherFisch, SpeicherGewaesser, UpdateFisch and so on. The
// page stays in front while its routine runs.

namespace modBasis {

namespace {

const QString modul = u"modBasis"_s;

/// The name of the record last opened, on whichever page: the old name of a changed one.
QString alterName;

/// The column of the catch book's grid that shows the names of this page.
int spalteImFangbuch(const Basis::Seite& seite) { return &seite == &the<Basis>().seiten[0] ? 1 : 2; }

/// Changes the name in the catch book's grid.
void benenneUm(const Basis::Seite& seite, const QString& name) {
    DataTable* grid = the<Basis>().fangbuchtabelle;
    const int column = spalteImFangbuch(seite);
    for (int row = 0; grid && grid->find(column, row, alterName) >= 0; ++row)
        grid->setCell(row, column, name);
}

void fuelle(const QString& routine, const Basis::Seite& seite, const QString& select) {
    fuelleGrid(routine, seite.grid, select, {seite.feldNr, seite.feldName});
}

/// Writes the two entry fields into the copy buffer.
Datensatz::Felder felder(ErrorTail& step, const Basis::Seite& seite) {
    return [&](Recordset& satz) {
        step([&] { satz.Collect(seite.feldName, seite.name->text()); });
        step([&] { satz.Collect(u"Notiz"_s, seite.notiz->Text()); });
    };
}

void speichere() {
    const Basis::Seite& seite = the<Basis>().seiteVorn();
    withErrorTail(modul, u"Speicher"_s + seite.tabelle, [&](ErrorTail& step) {
        if (const auto zeile = Datensatz::speichere(step, seite.tabelle, felder(step, seite),
                                                    {seite.feldNr, seite.feldName})) {
            seite.grid->appendRow(*zeile);
            seite.grid->markRow(seite.grid->rowCount());
        }
        BasisAnzeigeLoeschen();
        seite.zeigeAnzahl();
    });
}

void meldeNichtGefunden() { MsgBox(u"FEHLER: Datensatz nicht vorhanden o. nicht gefunden !"_s, vbCritical); }

void aendere(int row) {
    const Basis::Seite& seite = the<Basis>().seiteVorn();
    withErrorTail(modul, u"Update"_s + seite.tabelle, [&](ErrorTail& step) {
        const QString name = seite.name->text();
        if (Datensatz::aendere(step, seite.tabelle, seite.nummer->text(), felder(step, seite), {}, {},
                               &meldeNichtGefunden)) {
            const int zeile = seite.grid->rowOf(seite.nummer->text(), row);
            step([&] { seite.grid->setCell(zeile, 1, name); });
            seite.grid->markRow(zeile);
            benenneUm(seite, name);
        }
        BasisAnzeigeLoeschen();
    });
}

void meldeNichtGeloescht() {
    MsgBox(u"FEHLER: Datensatz kann nicht gelöscht oder gefunden werden !"_s, vbCritical);
}

void loesche(int row) {
    const Basis::Seite& seite = the<Basis>().seiteVorn();
    withErrorTail(modul, u"Loesche"_s + seite.tabelle, [&](ErrorTail& step) {
        if (Datensatz::loesche(step, seite.tabelle, seite.nummer->text(), {}, &meldeNichtGeloescht)) {
            step([&] { seite.grid->removeRow(seite.grid->rowOf(seite.nummer->text(), row)); });
            seite.zeigeAnzahl();
            if (DataTable* faenge = the<Basis>().fangbuchtabelle)
                faenge->removeRowsWithText(spalteImFangbuch(seite), seite.name->text());
        }
        BasisAnzeigeLoeschen();
    });
}

bool vollstaendig() { return modRun::fehlerfrei(modRun::erstesLeere({the<Basis>().seiteVorn().name})); }

void fuelleAusGrid(ComboBox* combo, const DataTable* grid) {
    combo->clear();
    for (int row = 0; row < grid->rowCount(); ++row) combo->AddItem(grid->cellText(row, 1));
}

} // namespace

void InitBasis() { alterName.clear(); }

void BasisAnzeigeLoeschen() {
    const Basis::Seite& seite = the<Basis>().seiteVorn();
    seite.leere();
    seite.name->setFocus();
}

void BasisAlleAnzeigenLoeschen() {
    for (const Basis::Seite& seite : the<Basis>().seiten) {
        seite.leere();
        seite.anzahl->setText(QString());
    }
}

void loadTblFBasis() { fuelle(u"loadTblFBasis"_s, the<Basis>().seiten[0], u"SELECT * FROM Fisch"_s); }

void loadTblGBasis() {
    fuelle(u"loadTblGBasis"_s, the<Basis>().seiten[1], u"SELECT GNr, GName FROM Gewaesser"_s);
}

void loadcboFArt(ComboBox* combo) { fuelleAusGrid(combo, the<Basis>().tblFBasis); }

void loadcboGName(ComboBox* combo) { fuelleAusGrid(combo, the<Basis>().tblGBasis); }

void loadAuswahl(int row) {
    const Basis::Seite& seite = the<Basis>().seiteVorn();
    // loadFAuswahl or loadGAuswahl.
    withErrorTail(modul, u"load%1Auswahl"_s.arg(seite.tabelle.front()), [&](ErrorTail& step) {
        const auto select = [&] {
            return u"SELECT * FROM %1 WHERE %2 = %3"_s.arg(seite.tabelle, seite.feldNr,
                                                           seite.grid->cellText(row, 0));
        };
        const auto zeige = [&](const Recordset& satz) {
            step([&] { seite.nummer->setText(CStr(satz.Collect(seite.feldNr))); });
            step([&] { seite.name->setText(CStr(satz.Collect(seite.feldName))); });
            step([&] { seite.notiz->setText(CStr(satz.Collect(u"Notiz"_s))); });
            step([&] { alterName = CStr(satz.Collect(seite.feldName)); });
        };
        liesSatz(step, select, zeige, [&] { MsgBox(seite.nichtGefunden, vbCritical); });
    });
}

Erfassung erfassung() {
    return {.vollstaendig = &vollstaendig,
            .speichere = &speichere,
            .aendere = &aendere,
            .loesche = &loesche,
            .frage = u"ACHTUNG: %1 - Referenzen im Fangbuch werden ebenfalls gelöscht !\r\n"_s
                     u"Trotzdem löschen ?"_s.arg(the<Basis>().seiteVorn().art),
            .beiNein = &BasisAnzeigeLoeschen};
}

} // namespace modBasis
