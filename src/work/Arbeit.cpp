#include "Arbeit.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "DateBox.h"
#include "Format.h"
#include "Jahre.h"
#include "Rahmen.h"
#include "RuntimeError.h"
#include "Screens.h"
#include "Session.h"
#include "Stunden.h"
#include "SuchKont.h"
#include "ValueLabel.h"
#include "modArbeit.h"
#include "modKontakt.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

// The layout of the screen is in ArbeitLayout.cpp; its behaviour is here.

namespace {

void bieteMitglieder(ComboBox* combo) {
    combo->AddItem(u"Mitglieder (aktiv)"_s);
    combo->AddItem(u"Mitglieder (passiv)"_s);
}

void uebernehmeTreffer(SuchKont& suche, int row) {
    suche.Hide();
    modArbeit::UebernehmeKontakt(row);
}

} // namespace

void Arbeit::Form_Load() {
    SuchKont::registriere(1, {&bieteMitglieder, false, &uebernehmeTreffer});
    modArbeit::LeereArbEingabe();
    loadcboArbJahre(cboArbJahr);
    if (cboArbJahr->count() > 0) cboArbJahr->setText(QString::number(session().Startjahr));
    // Making this screen gives up records open on other screens, as a press in a toolbar does.
    Screens::giveUpRecords();
    // Connected only now: filling the list must not load a year.
    on(cboArbJahr, &ComboBox::Click, [this] { cboArbJahr_Click(); });
}

void Arbeit::Form_Activate() {
    if (m_uebergabe)
        m_uebergabe = false;
    else if (session().NachReport)
        session().NachReport = false;
    else
        the<SuchKont>().ShowModal();
}

void Arbeit::Form_Deactivate() {
    if (!session().NachReport) modArbeit::LeereArbAnzeige();
    unload<SuchKont>();
}

bool Arbeit::Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) {
    if (key != Qt::Key_F || modifiers != Qt::ControlModifier) return false;
    cmdSuch_Click();
    return true;
}

void Arbeit::drucke(const QString& wort) {
    // The press gives up the open booking. If it stayed on the screen, the next save would add it again.
    modArbeit::LeereOffenen();
    modArbeit::DruckeArbListe(wort);
}

void Arbeit::cmdSuch_Click() {
    modKontakt::SuchAnzeigeLoeschen();
    the<SuchKont>().ShowModal();
}

void Arbeit::cmdMList_Click() {
    Hide();
    rahmen()->zeigeMitgliederliste();
}

namespace {

/// Skips a statement that fails on a number missing from the screen, as happens while no member is shown.
template<typename Statement>
void soweitMitglied(Statement&& statement) {
    try {
        statement();
    } catch (const RuntimeError& error) {
        if (!error.is(RuntimeError::typesDiffer)) throw;
    }
}

} // namespace

void Arbeit::cboArbJahr_Click() {
    const auto lade = [this] {
        return modArbeit::loadTblArbeit(CLng(lblKNr->text()), CLng(cboArbJahr->currentText()));
    };
    try {
        soweitMitglied(lade);
        soweitMitglied([&] { lblGesStd->setText(Format(lade(), stundenMuster())); });
        soweitMitglied([] { modArbeit::zeigePflichtStd(); });
        soweitMitglied([] { modArbeit::zeigeSaldo(); });
    } catch (const RuntimeError&) {
        // The list stays incomplete. The next choice of a year loads it again.
    }
}

void Arbeit::tblArbStd_OnGridCellOpen(int row, int column) {
    if (row < 0) return;
    modArbeit::LeereArbEingabe();
    modArbeit::loadArbeitsVorgang(row, column);
    openRecord(lblArbNr->text(), row);
    pvDate->setFocus();
}
