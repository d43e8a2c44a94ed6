#include "Besatzung.h"

#include "Clock.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "Drucklauf.h"
#include "ExcelAusgabe.h"
#include "Jahre.h"
#include "Session.h"
#include "ValueLabel.h"
#include "modBasis.h"
#include "modBesatzList.h"

using namespace Qt::StringLiterals;

// The layout of the screen is in BesatzungLayout.cpp; its behaviour is here.

void Besatzung::Form_Load() {
    modBasis::loadcboFArt(cboFArt);
    modBasis::loadcboGName(cboGName);
}

void Besatzung::Form_Activate() {
    // The return from a report must not lose what is chosen and typed.
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

/// As a click on the year, also where it stands there already: the plan is loaded anew.
void Besatzung::waehleJahr(const QString& jahr) {
    const int before = cboBJahr->currentIndex();
    cboBJahr->setText(jahr);
    if (cboBJahr->currentIndex() == before) cboBJahr_Click();
}

void Besatzung::cboBJahr_Click() {
    Session& s = session();
    if (s.TabelleLaedt) return;
    // The load takes the year from the session; it is lent to it and put back.
    s.AktJahr = CInt(cboBJahr->currentText());
    modBesatzList::loadTblBList();
    s.AktJahr = static_cast<qint16>(today().year());
    zeigeAnzahl();
}

/// A press that puts the plan out ends the editing of an opened stocking, which must not stand there as a new
/// one afterwards. A new one that is being typed stays.
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
    druckeFuer(*this, [&] { modBesatzList::DruckeBPlanListe(wort); });
}

void Besatzung::tblBList_OnGridCellOpen(int row) {
    if (row < 0) return;
    modBesatzList::BesatzAnzeigeLoeschen();
    modBesatzList::loadEintrag(tblBList, row);
    openRecord(lblBNr->text(), row);
    cboFArt->setFocus();
}
