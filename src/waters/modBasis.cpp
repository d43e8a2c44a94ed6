#include "modBasis.h"

#include "Basis.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "Datenbank.h"
#include "Datensatz.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "MemoBox.h"
#include "MsgBox.h"
#include "Recordset.h"
#include "Screens.h"
#include "TextBox.h"
#include "ValueLabel.h"

#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace modBasis {

namespace {

/// The differences between kinds of fish and waters. One set of routines serves both.
struct Art {
    QString tabelle;
    QString feldNr;
    QString feldName;
    ValueLabel* lblNr;
    TextBox* txtName;
    MemoBox* txtNotiz;
    DataTable* grid;
    ValueLabel* lblAnzahl;
    const std::function<void(const Basis::Verweis&)>& geaendert;
    QString nichtGefunden; ///< message if there is no record to open
};

Art fisch() {
    const Basis& screen = the<Basis>();
    return {u"Fisch"_s,
            u"FNr"_s,
            u"FName"_s,
            screen.lblFNr,
            screen.txtFArt,
            screen.txtFNotiz,
            screen.tblFBasis,
            screen.lblFAnzahl,
            screen.fischGeaendert,
            u"FEHLER: Datensatz nicht vorhanden o. nicht gefunden !"_s};
}

Art gewaesser() {
    const Basis& screen = the<Basis>();
    return {u"Gewaesser"_s,
            u"GNr"_s,
            u"GName"_s,
            screen.lblGNr,
            screen.txtGName,
            screen.txtGNotiz,
            screen.tblGBasis,
            screen.lblGAnzahl,
            screen.gewaesserGeaendert,
            u"Fehler: Datensatz nicht vorhanden o. nicht gefunden !"_s};
}

/// The name of the record last opened, on whichever page: the old name for "UPDATE".
QString alterName;

constexpr int fishPage = 0;
const Art artInFront() { return the<Basis>().TabBasis->currentIndex() == fishPage ? fisch() : gewaesser(); }

void leere(const Art& art) {
    art.lblNr->setText(QString());
    art.txtName->setText(QString());
    art.txtNotiz->setText(QString());
}

void melde(const Art& art, const Basis::Verweis& verweis) {
    if (art.geaendert) art.geaendert(verweis);
}

void zeigeAnzahl(const Art& art) { art.lblAnzahl->setText(QString::number(art.grid->rowCount())); }

std::vector<Value> alsZeile(const Recordset& satz, const Art& art) {
    return {satz.Collect(art.feldNr), satz.Collect(art.feldName)};
}

void fuelleGrid(const QString& routine, const Art& art, const QString& select) {
    ::fuelleGrid(routine, art.grid, select, [&](const Recordset& satz) { return alsZeile(satz, art); });
}

/// Writes the two entry fields into the copy buffer.
Datensatz::Felder felder(ErrorTail& step, const Art& art) {
    return [&](Recordset& satz) {
        step([&] { satz.Collect(art.feldName, art.txtName->text()); });
        step([&] { satz.Collect(u"Notiz"_s, art.txtNotiz->Text()); });
    };
}

void speichere(const QString& routine, const Art& art) {
    withErrorTail(u"modBasis"_s, routine, [&](ErrorTail& step) {
        std::vector<Value> zeile;
        if (Datensatz::speichere(step, art.tabelle, felder(step, art),
                                 Datensatz::lies(step, zeile, {art.feldNr, art.feldName}))) {
            step([&] { art.grid->appendRow(zeile); });
            art.grid->markRow(art.grid->rowCount());
        }
        BasisAnzeigeLoeschen();
        zeigeAnzahl(art);
    });
}

void meldeNichtGefunden() { MsgBox(u"FEHLER: Datensatz nicht vorhanden o. nicht gefunden !"_s, vbCritical); }

void aendere(const QString& routine, const Art& art, int row) {
    withErrorTail(u"modBasis"_s, routine, [&](ErrorTail& step) {
        const QString name = art.txtName->text();
        if (Datensatz::aendere(step, art.tabelle, art.lblNr->text(), felder(step, art), {},
                               &meldeNichtGefunden)) {
            const int zeile = art.grid->rowOf(art.lblNr->text(), row);
            step([&] { art.grid->setCell(zeile, 1, name); });
            art.grid->markRow(zeile);
            step([&] { melde(art, {name, u"UPDATE"_s, alterName}); });
        }
        BasisAnzeigeLoeschen();
    });
}

void meldeNichtGeloescht() {
    MsgBox(u"FEHLER: Datensatz kann nicht gelöscht oder gefunden werden !"_s, vbCritical);
}

void loesche(const QString& routine, const Art& art, int row) {
    withErrorTail(u"modBasis"_s, routine, [&](ErrorTail& step) {
        if (Datensatz::loesche(step, art.tabelle, art.lblNr->text(), {}, &meldeNichtGeloescht)) {
            step([&] { art.grid->removeRow(art.grid->rowOf(art.lblNr->text(), row)); });
            zeigeAnzahl(art);
            step([&] { melde(art, {art.txtName->text(), u"LOESCHEN"_s, QString()}); });
        }
        BasisAnzeigeLoeschen();
    });
}

void ladeAuswahl(const QString& routine, const Art& art, int row) {
    withErrorTail(u"modBasis"_s, routine, [&](ErrorTail& step) {
        Recordset satz;
        step([&] {
            satz = oeffneAbfrage(u"SELECT * FROM "_s + art.tabelle + u" WHERE "_s + art.feldNr + u" = "_s +
                                 art.grid->cellText(row, 0));
        });
        if (step.test([&] { return satz.RecordCount() != 0; })) {
            step([&] { art.lblNr->setText(CStr(satz.Collect(art.feldNr))); });
            step([&] { art.txtName->setText(CStr(satz.Collect(art.feldName))); });
            step([&] { art.txtNotiz->setText(CStr(satz.Collect(u"Notiz"_s))); });
            step([&] { alterName = CStr(satz.Collect(art.feldName)); });
        } else {
            MsgBox(art.nichtGefunden, vbCritical);
        }
        step([&] { satz.Close(); });
    });
}

bool vollstaendig(const Art& art) { return modRun::fehlerfrei(modRun::erstesLeere({art.txtName})); }

} // namespace

void InitBasis() { alterName.clear(); }

void BasisAnzeigeLoeschen() {
    const Art art = artInFront();
    leere(art);
    art.txtName->setFocus();
}

void BasisAlleAnzeigenLoeschen() {
    for (const Art& art : {fisch(), gewaesser()}) {
        leere(art);
        art.lblAnzahl->setText(QString());
    }
}

void loadTblFBasis() { fuelleGrid(u"loadTblFBasis"_s, fisch(), u"SELECT * FROM Fisch"_s); }
void loadTblGBasis() { fuelleGrid(u"loadTblGBasis"_s, gewaesser(), u"SELECT GNr, GName FROM Gewaesser"_s); }

namespace {

void fuelleAusGrid(ComboBox* combo, const DataTable* grid) {
    combo->clear();
    for (int row = 0; row < grid->rowCount(); ++row) combo->AddItem(grid->cellText(row, 1));
}

} // namespace

void loadcboFArt(ComboBox* combo) { fuelleAusGrid(combo, the<Basis>().tblFBasis); }
void loadcboGName(ComboBox* combo) { fuelleAusGrid(combo, the<Basis>().tblGBasis); }

bool FischEingabeVollstaendig() { return vollstaendig(fisch()); }
bool GewaesserEingabeVollstaendig() { return vollstaendig(gewaesser()); }
void SpeicherFisch() { speichere(u"SpeicherFisch"_s, fisch()); }
void SpeicherGewaesser() { speichere(u"SpeicherGewaesser"_s, gewaesser()); }
void UpdateFisch(int row) { aendere(u"UpdateFisch"_s, fisch(), row); }
void UpdateGewaesser(int row) { aendere(u"UpdateGewaesser"_s, gewaesser(), row); }
void LoescheFisch(int row) { loesche(u"LoescheFisch"_s, fisch(), row); }
void LoescheGewaesser(int row) { loesche(u"LoescheGewaesser"_s, gewaesser(), row); }
void loadFAuswahl(int row, int /*column*/) { ladeAuswahl(u"loadFAuswahl"_s, fisch(), row); }
void loadGAuswahl(int row, int /*column*/) { ladeAuswahl(u"loadGAuswahl"_s, gewaesser(), row); }

Erfassung fischErfassung() {
    return {.vollstaendig = &FischEingabeVollstaendig,
            .speichere = &SpeicherFisch,
            .aendere = &UpdateFisch,
            .loesche = &LoescheFisch,
            .frage = u"ACHTUNG: Fisch - Referenzen im Fangbuch werden ebenfalls gelöscht !\r\n"_s
                     u"Trotzdem löschen ?"_s,
            .beiNein = &BasisAnzeigeLoeschen};
}

Erfassung gewaesserErfassung() {
    return {.vollstaendig = &GewaesserEingabeVollstaendig,
            .speichere = &SpeicherGewaesser,
            .aendere = &UpdateGewaesser,
            .loesche = &LoescheGewaesser,
            .frage = u"ACHTUNG: Gewässer - Referenzen im Fangbuch werden ebenfalls gelöscht !\r\n"_s
                     u"Trotzdem löschen ?"_s,
            .beiNein = &BasisAnzeigeLoeschen};
}

} // namespace modBasis
