#include "Benutzer.h"

#include "DataTable.h"
#include "ValueLabel.h"
#include "modBenutzer.h"

#include <QTabWidget>

void Benutzer::Form_Load() { tabBV->setCurrentIndex(userPage); }

void Benutzer::Form_Activate() { modBenutzer::LadeGruppenCombo(cboBG); }

void Benutzer::Form_Paint() {
    lblBAnzahl->setText(QString::number(tblBenutzer->rowCount()));
    lblGAnzahl->setText(QString::number(tblZugriff->rowCount()));
}

void Benutzer::Form_Deactivate() { modBenutzer::LeereBenutzerAnzeige(); }

void Benutzer::tabBV_Click(int page) {
    // Groups may have been added, deleted or renamed on the group page.
    if (m_page == groupPage) modBenutzer::LadeGruppenCombo(cboBG);
    m_page = page;
    // Form_Paint sets the counts of both pages.
    update();
}

void Benutzer::tblBenutzer_OnGridCellOpen(int row) {
    if (row < 0) return;
    setGridRow(row);
    modBenutzer::LadeBenutzerVorgang();
}

void Benutzer::tblZugriff_OnGridCellOpen(int row) {
    if (row < 0) return;
    modBenutzer::LadeGruppenVorgang(row);
}

void Benutzer::tblZugriff_OnGridLostFocus() {
    // Takes the row count of the users' grid: with more groups than users, a group in a row past that count
    // stays marked.
    tblZugriff->selectRows(0, tblBenutzer->rowCount(), false);
}
