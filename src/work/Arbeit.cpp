#include "Arbeit.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "DateBox.h"
#include "Drucklauf.h"
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

void uebernehmeTreffer(SuchKont& suche, int row, int /*column*/) {
    suche.Hide();
    modArbeit::UebernehmeKontakt(row);
}

} // namespace

void Arbeit::Form_Load() {
    SuchKont::registriere(1, {&bieteMitglieder, false, &uebernehmeTreffer});
    modArbeit::LeereArbEingabe();
    loadcboArbJahre(cboArbJahr);
    if (cboArbJahr->count() > 0) cboArbJahr->setText(QString::number(session().Startjahr));
    // The first way to the hours ends what stands open elsewhere, as a press in a toolbar does.
    Screens::giveUpRecords();
    // From here on a year stands for the wish to see it.
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
    // The press ends the editing of an opened booking, which must not stand there as a new one afterwards.
    modArbeit::LeereOffenen();
    druckeFuer(*this, [&] { modArbeit::DruckeArbListe(wort); });
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

/// Without a member on the screen there is no number to convert: what needs it is passed over.
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
        // The list is then as far as it came; the next pick of a year begins anew.
    }
}

void Arbeit::tblArbStd_OnGridCellOpen(int row, int column) {
    if (row < 0) return;
    modArbeit::LeereArbEingabe();
    modArbeit::loadArbeitsVorgang(row, column);
    openRecord(lblArbNr->text(), row);
    pvDate->setFocus();
}
