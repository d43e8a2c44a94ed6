#include "modKontakt.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "Datenbank.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "Katego.h"
#include "Kontakt.h"
#include "KontaktFelder.h"
#include "Meldungen.h"
#include "MemoBox.h"
#include "Recordset.h"
#include "Screens.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "Zugriff.h"
#include "modKatego.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QScopeGuard>
#include <QTabWidget>

// The mask of a contact and the lookups around it. What writes stands in modKontaktSpeichern.cpp.

namespace modKontakt {

namespace {

const QString modul = u"modKontakt"_qs;

} // namespace

bool KontaktZugriff_Erlaubt() { return zugriffErlaubt(modul, u"KontaktZugriff_Erlaubt"_qs, u"Kontakt"_qs); }

void FuelleKategoCombo(ComboBox* combo) {
    const DataTable* grid = screen<Katego>().tblKatego;
    if (combo->count() == grid->rowCount()) return;
    combo->clear();
    for (int row = 0; row < grid->rowCount(); ++row) {
        QString name = grid->cellText(row, 1);
        const QString ohneMarke = name.chopped(qMin(name.size(), modKatego::systemMarke.size()));
        if (modKatego::istSystemkategorie(ohneMarke) && name.endsWith(modKatego::systemMarke))
            name = ohneMarke;
        combo->AddItem(name);
    }
}

namespace {

void zeigeMitgliedZu(ErrorTail& step, qint32 knr, Kontakt& form) {
    Recordset mitglied;
    step([&] { mitglied = oeffneAbfrage(u"SELECT * FROM Mitglied WHERE KNr = "_qs + QString::number(knr)); });
    if (step.test([&] { return mitglied.RecordCount() == 1; }))
        KontaktFelder::zeigeMitglied(step, mitglied, form);
    step([&] { mitglied.Close(); });
}

} // namespace

void loadKontakt(DataTable* grid, int row, int /*column*/) {
    // A fifth error may leave the mask filled and hidden. "Neuer Kontakt" would then open with this contact.
    const auto schliesse = qScopeGuard([] { unload<Kontakt>(); });
    withErrorTail(modul, u"loadKontakt"_qs, [grid, row](ErrorTail& step) {
        qint32 knr = 0;
        Recordset kontakt;
        step([&] { knr = CLng(grid->cell(row, 0)); });
        step([&] {
            kontakt = oeffneAbfrage(u"SELECT * FROM Kontakt WHERE KNr = "_qs + QString::number(knr));
        });
        if (step.test([&] { return kontakt.RecordCount() == 1; })) {
            Kontakt& form = screen<Kontakt>();
            KontaktFelder::zeigeKontakt(step, kontakt, form);
            if (KontaktFelder::istMitglied(form)) zeigeMitgliedZu(step, knr, form);
            // The mask stays open for long; nothing in the file waits for it.
            step([&] { kontakt.Close(); });
            form.ShowModal();
        } else {
            modRun::MeldeNichtVorhanden();
            step([&] { kontakt.Close(); });
        }
    });
}

void SetzeKontaktToolbar(int enabled) {
    if (enabled != 0 && enabled != 1) return;
    // A mask that has been closed in the meantime comes back with all its keys.
    if (enabled == 1 && !isLoaded<Kontakt>()) return;
    for (const QString& key : {u"tbSpeichern"_qs, u"tbLoeschen"_qs, u"tbAnzLoeschen"_qs})
        screen<Kontakt>().Toolbar1->setKeyEnabled(key, enabled == 1);
    if (enabled == 0) screen<Kontakt>().sperre();
}

void SetzeMitglFelder() {
    Kontakt& form = screen<Kontakt>();
    if (form.istGesperrt()) return;
    const bool mitglied = KontaktFelder::istMitglied(form);
    for (QWidget* control : std::initializer_list<QWidget*>{
             form.optMann, form.optFrau, form.optBefreit, form.optNBefreit, form.optBezahlt, form.optNBezahlt,
             form.txtEintritt, form.txtAustritt, form.chkJG})
        control->setEnabled(mitglied);
}

bool EingabeKontaktOK() {
    const Kontakt& form = screen<Kontakt>();
    return !modRun::erstesLeere({form.cboKatego, form.txtNName, form.txtVName});
}

void KontaktAnzeigeLoeschen() {
    Kontakt& form = screen<Kontakt>();
    form.lblKNr->setText(QString());
    form.cboKatego->setListIndex(-1);
    for (TextBox* box :
         {form.txtAnrede, form.txtNName, form.txtVName, form.txtStrasse, form.txtPLZ, form.txtOrt,
          form.txtTelPriv, form.txtTelGesch, form.txtMobil, form.txtFax, form.txtEMail, form.txtFirma,
          form.txtGebDat, form.txtBLZ, form.txtKInst, form.txtKontoNr, form.txtEintritt, form.txtAustritt})
        box->setText(QString());
    for (QRadioButton* option : {form.optMann, form.optNBefreit, form.optNBezahlt}) option->setChecked(true);
    form.chkEinzug->setChecked(false);
    form.txtNotiz->setText(QString());
    form.TabKont->setCurrentIndex(0);
    form.cboKatego->setFocus();
}

} // namespace modKontakt
