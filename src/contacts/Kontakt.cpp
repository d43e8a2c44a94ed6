#include "Kontakt.h"

#include "Eingaben.h"
#include "Meldungen.h"
#include "MsgBox.h"
#include "Screens.h"
#include "Tastenfilter.h"
#include "modKatego.h"
#include "modKontakt.h"

using namespace Qt::StringLiterals;

Kontakt::Kontakt()
    : Screen(u"Kontakt"_s, u"Kontakt"_s) {
    TabKont->setObjectName(u"TabKont"_s);
    setUpFields();
    layOutGlobal();
    layOutPages();
    QVBoxLayout* column = Layout::column(this);
    column->addWidget(Toolbar1);
    column->addWidget(TabKont, 1);
    on(cboKatego, &ComboBox::Click, [this] { SetzeMitglFelder(); });
}

Toolbar* Kontakt::buildToolbar() {
    return Layout::recordToolbar(
        this, [this] { Speichern(); }, [this] { Loeschen(); }, [this] { KontaktAnzeigeLoeschen(); });
}

void Kontakt::setUpFields() {
    for (TextBox* box : {txtPLZ, txtKontoNr, txtBLZ}) box->setKeyFilter(&modRun::FilterZiffern);
    for (TextBox* box : {txtTelPriv, txtTelGesch, txtMobil, txtFax})
        box->setKeyFilter(&modRun::FilterTelefon);
    for (TextBox* box : {txtGebDat, txtEintritt, txtAustritt}) {
        box->setKeyFilter(&modRun::FilterDatum, Refused::WithTheWhole);
        box->setHoldsDate();
    }
    for (QRadioButton* first : {optMann, optNBefreit, optNBezahlt}) first->setChecked(true);
    txtNotiz->setAccessibleName(u"Notizen"_s);
}

void Kontakt::layOutGlobal() {
    QGridLayout* screen = Layout::form(Frame1);
    screen->setColumnStretch(1, 1);
    Layout::addFields(screen, {{lblKontNr, lblKNr},
                               {lblKatego, cboKatego},
                               {lblAnr, txtAnrede},
                               {lblOrg, txtFirma},
                               {lblName, txtNName},
                               {lblVName, txtVName},
                               {lblStrasse, txtStrasse},
                               {lblPLZ, txtPLZ},
                               {lblGebDatum, txtGebDat}});
    // Postal code and town share a line, as on an envelope.
    screen->addWidget(Layout::line(Frame1, {txtPLZ, lblOrt, txtOrt}, txtOrt), 7, 1);
    lblOrt->setBuddy(txtOrt);
    txtOrt->setAccessibleName(u"Ort"_s);
    QWidget* birth = Layout::line(Frame1, {txtGebDat, chkJG});
    birth->layout()->setSpacing(2 * Layout::gap);
    screen->addWidget(birth, 8, 1);
    txtPLZ->setFixedWidth(64);
    txtGebDat->setFixedWidth(112);

    Layout::addFields(Layout::form(Frame4), {{lblEintritt, txtEintritt}, {lblAustritt, txtAustritt}});
    auto* member = new QVBoxLayout;
    member->setSpacing(Layout::gap);
    for (QGroupBox* frame : {Frame2, Frame4, Frame14, Frame3}) member->addWidget(frame);
    member->addStretch();
    for (QGroupBox* pair : {Frame2, Frame14, Frame3}) {
        auto* row = new QHBoxLayout(pair);
        for (auto* option : pair->findChildren<QRadioButton*>()) row->addWidget(option, 1);
    }
    auto* sides = new QHBoxLayout;
    Layout::page(TabKont, u"Global"_s)->addLayout(sides);
    sides->addWidget(Frame1, 3, Qt::AlignTop);
    sides->addLayout(member, 2);
}

void Kontakt::layOutPages() {
    Layout::addFields(pageOfOne(u"Kommunikation"_s, Frame5), {{Label1, txtTelPriv},
                                                              {lblTelGesch, txtTelGesch},
                                                              {Label2, txtMobil},
                                                              {lblFax, txtFax},
                                                              {lblEMail, txtEMail}});
    QGridLayout* bank = pageOfOne(u"Bank"_s, Frame6);
    Layout::addFields(bank, {{lblKontoNr, txtKontoNr}, {Label3, txtBLZ}, {lblKreditInstit, txtKInst}});
    bank->addWidget(chkEinzug, 3, 1);
    (new QVBoxLayout(Frame7))->addWidget(txtNotiz);
    Layout::page(TabKont, u"Info"_s)->addWidget(Frame7);
}

/// Adds a page with one form at its top.
QGridLayout* Kontakt::pageOfOne(const QString& caption, QGroupBox* frame) {
    Layout::page(TabKont, caption)->addWidget(frame, 0, Qt::AlignTop);
    QGridLayout* screen = Layout::form(frame);
    screen->setColumnStretch(1, 1);
    return screen;
}

void Kontakt::Form_Load() {
    TabKont->setCurrentIndex(0);
    modKatego::FuelleKategoCombo(cboKatego);
    SetzeMitglFelder();
    cboKatego->setFocus();
}

// Removes the closed screen, so that it opens empty the next time.
void Kontakt::Form_QueryUnload() { unload<Kontakt>(); }

void Kontakt::sperre() {
    m_gesperrt = true;
    for (const QString& key : {u"tbSpeichern"_s, u"tbLoeschen"_s, u"tbAnzLoeschen"_s})
        Toolbar1->setKeyEnabled(key, false);
    for (TextBox* box : TabKont->findChildren<TextBox*>()) {
        box->setEnabled(true);
        box->setReadOnly(true);
    }
    txtNotiz->setReadOnly(true);
    cboKatego->setEnabled(false);
    for (QRadioButton* option : TabKont->findChildren<QRadioButton*>()) option->setEnabled(false);
    for (QCheckBox* box : TabKont->findChildren<QCheckBox*>()) box->setEnabled(false);
}

bool Kontakt::istMitglied() const { return modKatego::istSystemkategorie(cboKatego->currentText()); }

void Kontakt::SetzeMitglFelder() {
    if (m_gesperrt) return;
    for (auto* option : TabKont->findChildren<QRadioButton*>()) option->setEnabled(istMitglied());
    for (TextBox* day : {txtEintritt, txtAustritt}) day->setEnabled(istMitglied());
    chkJG->setEnabled(istMitglied());
}

void Kontakt::KontaktAnzeigeLoeschen() {
    lblKNr->setText(QString());
    cboKatego->setListIndex(-1);
    for (auto* box : TabKont->findChildren<TextBox*>()) box->setText(QString());
    for (QRadioButton* first : {optMann, optNBefreit, optNBezahlt}) first->setChecked(true);
    chkEinzug->setChecked(false);
    txtNotiz->setText(QString());
    TabKont->setCurrentIndex(0);
    cboKatego->setFocus();
}

void Kontakt::Speichern() {
    QWidget* const leer = modRun::erstesLeere({cboKatego, txtNName, txtVName});
    if (isEditing()) {
        // An incomplete contact stays, without a message box. The next press adds it as a new one.
        if (leer) return;
        AusSuche ? modKontakt::UpdateSQLKontakt() : modKontakt::UpdateKontakt();
    } else if (!leer) {
        modKontakt::SpeicherKontakt();
    } else {
        TabKont->setCurrentIndex(0);
        modRun::MeldeEingabeFehler(leer);
    }
}

void Kontakt::Loeschen() {
    // The message box only warns: the contact is deleted whatever the answer.
    MsgBox(u"ACHTUNG: Bei Mitgliederkontakt werden auch alle Referenzen des Kontaktes im "_s
           u"Arbeitscontrolling gelöscht !\r\nKontakt wirklich löschen ?"_s,
           vbYesNo);
    modKontakt::LoescheKontakt();
}
