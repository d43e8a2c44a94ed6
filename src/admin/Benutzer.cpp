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
    // Groups may have come, gone or been renamed on the page that is left.
    if (m_page == groupPage) modBenutzer::LadeGruppenCombo(cboBG);
    m_page = page;
    // A page that comes to the front is a face painted anew: its counts are put right.
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
    // The other grid's count: with fewer users than groups, a group far down stays marked.
    tblZugriff->selectRows(0, tblBenutzer->rowCount(), false);
}
