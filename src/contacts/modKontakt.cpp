#include "modKontakt.h"

#include "Conversions.h"
#include "Datenbank.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "Katego.h"
#include "Kontakt.h"
#include "KontaktFelder.h"
#include "Meldungen.h"
#include "Recordset.h"
#include "Screens.h"
#include "Zugriff.h"
#include "modKatego.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

// Fills and empties the screen of a contact. Writing is in modKontaktSpeichern.cpp.

namespace modKontakt {

namespace {

const QString modul = u"modKontakt"_s;

} // namespace

bool KontaktZugriff_Erlaubt() { return zugriffErlaubt(modul, u"KontaktZugriff_Erlaubt"_s, u"Kontakt"_s); }

void FuelleKategoCombo(ComboBox* combo) {
    const DataTable* grid = the<Katego>().tblKatego;
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

void zeigeMitgliedZu(ErrorTail& step, qint32 knr, Kontakt& screen) {
    Recordset mitglied;
    step([&] { mitglied = oeffneAbfrage(u"SELECT * FROM Mitglied WHERE KNr = "_s + QString::number(knr)); });
    if (step.test([&] { return mitglied.RecordCount() == 1; }))
        KontaktFelder::zeigeMitglied(step, mitglied, screen);
    step([&] { mitglied.Close(); });
}

} // namespace

void loadKontakt(DataTable* grid, int row) {
    // A fifth error may leave the screen filled and hidden. "Neuer Kontakt" would then show it.
    const auto schliesse = qScopeGuard([] { unload<Kontakt>(); });
    withErrorTail(modul, u"loadKontakt"_s, [grid, row](ErrorTail& step) {
        qint32 knr = 0;
        Recordset kontakt;
        step([&] { knr = CLng(grid->cell(row, 0)); });
        step(
            [&] { kontakt = oeffneAbfrage(u"SELECT * FROM Kontakt WHERE KNr = "_s + QString::number(knr)); });
        if (step.test([&] { return kontakt.RecordCount() == 1; })) {
            Kontakt& screen = the<Kontakt>();
            KontaktFelder::zeigeKontakt(step, kontakt, screen);
            if (KontaktFelder::istMitglied(screen)) zeigeMitgliedZu(step, knr, screen);
            // Closed before the screen is shown: the file must not wait for the user.
            step([&] { kontakt.Close(); });
            screen.ShowModal();
        } else {
            modRun::MeldeNichtVorhanden();
            step([&] { kontakt.Close(); });
        }
    });
}

void SetzeKontaktToolbar(int enabled) {
    if (enabled != 0 && enabled != 1) return;
    // A screen closed in the meantime has nothing to enable: the next one has all its buttons.
    if (enabled == 1 && !isLoaded<Kontakt>()) return;
    for (const QString& key : {u"tbSpeichern"_s, u"tbLoeschen"_s, u"tbAnzLoeschen"_s})
        the<Kontakt>().Toolbar1->setKeyEnabled(key, enabled == 1);
    if (enabled == 0) the<Kontakt>().sperre();
}

void SetzeMitglFelder() {
    Kontakt& screen = the<Kontakt>();
    if (screen.istGesperrt()) return;
    const bool mitglied = KontaktFelder::istMitglied(screen);
    for (QWidget* control : std::initializer_list<QWidget*>{
             screen.optMann, screen.optFrau, screen.optBefreit, screen.optNBefreit, screen.optBezahlt,
             screen.optNBezahlt, screen.txtEintritt, screen.txtAustritt, screen.chkJG})
        control->setEnabled(mitglied);
}

bool EingabeKontaktOK() {
    const Kontakt& screen = the<Kontakt>();
    return !modRun::erstesLeere({screen.cboKatego, screen.txtNName, screen.txtVName});
}

void KontaktAnzeigeLoeschen() {
    Kontakt& screen = the<Kontakt>();
    screen.lblKNr->setText(QString());
    screen.cboKatego->setListIndex(-1);
    for (TextBox* box : {screen.txtAnrede, screen.txtNName, screen.txtVName, screen.txtStrasse, screen.txtPLZ,
                         screen.txtOrt, screen.txtTelPriv, screen.txtTelGesch, screen.txtMobil, screen.txtFax,
                         screen.txtEMail, screen.txtFirma, screen.txtGebDat, screen.txtBLZ, screen.txtKInst,
                         screen.txtKontoNr, screen.txtEintritt, screen.txtAustritt})
        box->setText(QString());
    for (QRadioButton* option : {screen.optMann, screen.optNBefreit, screen.optNBezahlt})
        option->setChecked(true);
    screen.chkEinzug->setChecked(false);
    screen.txtNotiz->setText(QString());
    screen.TabKont->setCurrentIndex(0);
    screen.cboKatego->setFocus();
}

} // namespace modKontakt
