#include "Besatzung.h"

#include "Clock.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "ExcelAusgabe.h"
#include "Jahre.h"
#include "Session.h"
#include "ValueLabel.h"
#include "modBasis.h"
#include "modBesatzList.h"

using namespace Qt::StringLiterals;

// Behaviour of the screen. Its layout is in BesatzungLayout.cpp.

void Besatzung::Form_Load() {
    modBasis::loadcboFArt(cboFArt);
    modBasis::loadcboGName(cboGName);
}

void Besatzung::Form_Activate() {
    // After a report the chosen year and the typed entry must stay.
    if (session().NachReport) {
        session().NachReport = false;
        return;
    }
    if (isEditing()) return;
    modBasis::loadcboFArt(cboFArt);
    modBasis::loadcboGName(cboGName);
    loadcboFJahr(cboBJahr);
    waehleJahr(QString::number(session().AktJahr));
    zeigeAnzahl();
}

void Besatzung::Form_Deactivate() {
    if (!session().NachReport) modBesatzList::BesatzAnzeigeLoeschen();
}

void Besatzung::zeigeAnzahl() { lblAnzahl->setText(QString::number(tblBList->rowCount())); }

/// Chooses the year and loads its plan, also if the year is chosen already.
void Besatzung::waehleJahr(const QString& jahr) {
    const int before = cboBJahr->currentIndex();
    cboBJahr->setText(jahr);
    if (cboBJahr->currentIndex() == before) cboBJahr_Click();
}

void Besatzung::cboBJahr_Click() {
    Session& s = session();
    if (s.TabelleLaedt) return;
    // loadTblBList reads the year from the session: set it for the call only.
    s.AktJahr = CInt(cboBJahr->currentText());
    modBesatzList::loadTblBList();
    s.AktJahr = static_cast<qint16>(today().year());
    zeigeAnzahl();
}

/// Empties the entry fields if a stocking is open. Every press in the toolbar ends EDIT, so its values would
/// be saved as a new stocking afterwards. Values of a new stocking stay.
void Besatzung::leereOffenen() {
    if (!lblBNr->text().isEmpty()) modBesatzList::BesatzAnzeigeLoeschen();
}

void Besatzung::tbExcel_Click() {
    leereOffenen();
    erzeugeAufWunsch(
        *tblBList,
        u"Wollen Sie eine in Excel zu importierende Datei mit der Bezeichnung - BPLAN.csv - erzeugen ?\n\r"_s
        u"ACHTUNG: Der Datei liegen die in der Tabelle angezeigten Daten zugrunde ! "_s
        u"Wollen Sie die Datei jetzt erzeugen ?"_s,
        u"Keine Daten zum erzeugen der Datei - BPLAN.csv - gefunden, der Vorgang wird abgebrochen !"_s,
        &modBesatzList::ErzeugeBPlanDatei);
}

void Besatzung::drucke(const QString& wort) {
    leereOffenen();
    modBesatzList::DruckeBPlanListe(wort);
}

void Besatzung::tblBList_OnGridCellOpen(int row) {
    if (row < 0) return;
    modBesatzList::BesatzAnzeigeLoeschen();
    modBesatzList::loadEintrag(tblBList, row);
    openRecord(lblBNr->text(), row);
    cboFArt->setFocus();
}
