#include "MitglList.h"

#include "ComboBox.h"
#include "DataTable.h"
#include "Drucklauf.h"
#include "Jahre.h"
#include "Meldungen.h"
#include "MsgBox.h"
#include "Rahmen.h"
#include "Screens.h"
#include "Session.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modKontakt.h"
#include "modMitglList.h"

#include <QCheckBox>
#include <QToolButton>
#include <algorithm>

using namespace Qt::StringLiterals;

// The layout of the screen is in MitglListLayout.cpp; its behaviour is here.

void MitglList::Form_Load() {
    loadcboArbJahre(cboArbJahr);
    cboArbJahr->setListIndex(cboArbJahr->findText(QString::number(session().Startjahr)));
}

void MitglList::Form_Activate() {
    // This screen keeps its lists anyway. NachReport must not reach the next screen, which printed nothing.
    session().NachReport = false;
}

void MitglList::setHourView(bool on) {
    for (int column = 3; column <= 7; ++column) tblMList->setColumnShown(column, !on);
    for (int column = 8; column <= 10; ++column) tblMList->setColumnShown(column, on);
}

bool MitglList::Form_KeyDown(int key, Qt::KeyboardModifiers) {
    if (key != Qt::Key_Escape) return false;
    Toolbar1->key(u"tbEsc"_s)->click();
    return true;
}

void MitglList::tbSuch_Click() {
    if (!modMitglList::PruefeMListEingabe()) return;
    // chkArbAnz is missing: the list of hours is no filter, so it needs the question as well.
    const auto filter = {chkGebDat,  chkEintritt,  chkGeschl, chkJBeitrag, chkStatus,
                         chkBefreit, chkAusgMitgl, chkJG,     chkArbStd};
    if (std::ranges::none_of(filter, &QCheckBox::isChecked) &&
        !modRun::frage(u"ACHTUNG: Wirklich alle Mitglieder aus der Datenbank laden ?"_s))
        return modRun::MeldeAbgebrochen();
    tblMList->clearRows();
    lblGefDS->setText(QString());
    modMitglList::LadeAuswahl();
}

void MitglList::tbEsc_Click() {
    modMitglList::LeereMListAnzeige();
    session().SuchAufrufer = 0;
    Hide();
    rahmen()->zeigeBereich(u"Kontakte"_s);
}

void MitglList::drucke(const QString& wort) {
    const auto routine =
        chkArbAnz->isChecked() ? &modMitglList::DruckeArbListe : &modMitglList::DruckeMitglListe;
    druckeFuer(*this, [&] { routine(wort); });
}

void MitglList::tblMList_OnGridCellDown(int row) {
    session().KontextZeileOK = row >= 0;
    if (row >= 0) setGridRow(row);
}

void MitglList::tblMList_OnGridCellMenu() {
    if (tblMList->rowCount() >= 1 && session().KontextZeileOK) rahmen()->loadKontMenu_Mitgl();
}

void MitglList::tblMList_OnGridCellOpen(int row) {
    if (row < 0 || tblMList->rowCount() == 0) return;
    if (!modKontakt::KontaktZugriff_Erlaubt()) {
        MsgBox(u"Sie haben keinen Zugriff auf diese Funktion !"_s, vbInformation);
        return;
    }
    modMitglList::zeigeKontakt(row);
}
