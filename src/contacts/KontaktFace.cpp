#include "ComboBox.h"
#include "Face.h"
#include "Kontakt.h"
#include "MemoBox.h"
#include "Tastenfilter.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modKontakt.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabWidget>

namespace {

constexpr int zipLimit = 5;
constexpr int dateLimit = 10;
constexpr int phoneLimit = 30;
constexpr int textLimit = 50;
constexpr int noteLimit = 255;

QWidget* addPage(QTabWidget* tabs, const QString& caption) {
    auto* page = new QWidget;
    tabs->addTab(page, caption);
    return page;
}

/// A page with one frame in its upper part.
QGridLayout* frameOnPage(QWidget* page, QGroupBox* frame) {
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(Face::gap, Face::gap, Face::gap, Face::gap);
    column->addWidget(frame);
    column->addStretch();
    auto* form = new QGridLayout(frame);
    form->setHorizontalSpacing(Face::gap);
    form->setColumnStretch(1, 1);
    return form;
}

/// Two options side by side in a frame of their own.
QGroupBox* optionPair(QGroupBox* frame, QRadioButton* left, QRadioButton* right) {
    auto* row = new QHBoxLayout(frame);
    row->addWidget(left, 1);
    row->addWidget(right, 1);
    return frame;
}

} // namespace

Kontakt::Kontakt()
    : Screen(u"Kontakt"_qs, u"Kontakt"_qs) {
    buildToolbar();
    TabKont = new QTabWidget(this);
    TabKont->setObjectName(u"TabKont"_qs);
    QWidget* global = addPage(TabKont, u"Global"_qs);
    buildPerson(global);
    layOutGlobal(global);
    buildCommunication(addPage(TabKont, u"Kommunikation"_qs));
    buildBank(addPage(TabKont, u"Bank"_qs));
    buildNote(addPage(TabKont, u"Info"_qs));
    QVBoxLayout* column = Face::column(this);
    column->addWidget(Toolbar1);
    column->addWidget(TabKont, 1);

    on(cboKatego, &ComboBox::Click, [] { modKontakt::SetzeMitglFelder(); });
}

void Kontakt::buildToolbar() {
    Toolbar1 = new Toolbar(this);
    Face::addRecordKeys(
        Toolbar1, [this] { Speichern(); }, [this] { Loeschen(); }, &modKontakt::KontaktAnzeigeLoeschen);
}

TextBox* Kontakt::field(const QString& name, QWidget* parent, int limit) {
    auto* box = new TextBox(name, parent);
    box->setMaxLength(limit);
    return box;
}

void Kontakt::buildPerson(QWidget* page) {
    Frame1 = Face::frame(u"Frame1"_qs, QString(), page);
    lblKontNr = Face::label(u"lblKontNr"_qs, u"Kontakt-Nr:"_qs, Frame1);
    lblKNr = new ValueLabel(u"lblKNr"_qs, Frame1);
    lblKatego = Face::label(u"lblKatego"_qs, u"Kontakt-Katego.:"_qs, Frame1);
    cboKatego = new ComboBox(u"cboKatego"_qs, ComboBox::Order::AsAdded, ComboBox::Kind::DropDownList, Frame1);
    lblAnr = Face::label(u"lblAnr"_qs, u"Anrede:"_qs, Frame1);
    txtAnrede = field(u"txtAnrede"_qs, Frame1, textLimit);
    lblOrg = Face::label(u"lblOrg"_qs, u"Firma:"_qs, Frame1);
    txtFirma = field(u"txtFirma"_qs, Frame1, textLimit);
    lblName = Face::label(u"lblName"_qs, u"Nachname:"_qs, Frame1);
    txtNName = field(u"txtNName"_qs, Frame1, textLimit);
    lblVName = Face::label(u"lblVName"_qs, u"Vorname:"_qs, Frame1);
    txtVName = field(u"txtVName"_qs, Frame1, textLimit);
    lblStrasse = Face::label(u"lblStrasse"_qs, u"Strasse:"_qs, Frame1);
    txtStrasse = field(u"txtStrasse"_qs, Frame1, textLimit);
    lblPLZ = Face::label(u"lblPLZ"_qs, u"PLZ:"_qs, Frame1);
    txtPLZ = field(u"txtPLZ"_qs, Frame1, zipLimit);
    txtPLZ->setKeyFilter(&modRun::FilterZiffern);
    lblOrt = Face::label(u"lblOrt"_qs, u"Ort:"_qs, Frame1);
    txtOrt = field(u"txtOrt"_qs, Frame1, textLimit);
    lblGebDatum = Face::label(u"lblGebDatum"_qs, u"Geb. - Datum:"_qs, Frame1);
    txtGebDat = field(u"txtGebDat"_qs, Frame1, dateLimit);
    txtGebDat->setKeyFilter(&modRun::FilterDatum, Refused::WithTheWhole);
    txtGebDat->setHoldsDate();
    chkJG = Face::checkBox(u"chkJG"_qs, u"Jugendgruppe"_qs, Frame1);
}

void Kontakt::layOutGlobal(QWidget* page) {
    auto* form = new QGridLayout(Frame1);
    form->setHorizontalSpacing(Face::gap);
    form->setColumnStretch(1, 1);
    const std::pair<QLabel*, QWidget*> rows[] = {
        {lblKontNr, lblKNr}, {lblKatego, cboKatego}, {lblAnr, txtAnrede},     {lblOrg, txtFirma},
        {lblName, txtNName}, {lblVName, txtVName},   {lblStrasse, txtStrasse}};
    int row = 0;
    for (const auto& [label, control] : rows) Face::addField(form, row++, label, control);
    // Postal code and town stand on one line, as on an envelope.
    auto* town = new QHBoxLayout;
    town->setSpacing(Face::gap);
    town->addWidget(txtPLZ);
    town->addWidget(lblOrt);
    town->addWidget(txtOrt, 1);
    txtPLZ->setFixedWidth(64);
    form->addWidget(lblPLZ, row, 0);
    form->addLayout(town, row++, 1);
    auto* birth = new QHBoxLayout;
    birth->setSpacing(2 * Face::gap);
    birth->addWidget(txtGebDat);
    birth->addWidget(chkJG);
    birth->addStretch();
    txtGebDat->setFixedWidth(112);
    form->addWidget(lblGebDatum, row, 0);
    form->addLayout(birth, row, 1);
    lblPLZ->setBuddy(txtPLZ);
    lblOrt->setBuddy(txtOrt);
    lblGebDatum->setBuddy(txtGebDat);
    txtPLZ->setAccessibleName(u"PLZ"_qs);
    txtOrt->setAccessibleName(u"Ort"_qs);
    txtGebDat->setAccessibleName(u"Geb. - Datum"_qs);

    auto* left = new QVBoxLayout;
    left->addWidget(Frame1);
    left->addStretch();
    auto* sides = new QHBoxLayout(page);
    sides->setContentsMargins(Face::gap, Face::gap, Face::gap, Face::gap);
    sides->setSpacing(Face::gap);
    sides->addLayout(left, 3);
    sides->addLayout(buildMember(page), 2);
}

QLayout* Kontakt::buildMember(QWidget* page) {
    Frame2 = Face::frame(u"Frame2"_qs, u"Geschlecht..."_qs, page);
    optMann = Face::option(u"optMann"_qs, u"männlich"_qs, Frame2);
    optFrau = Face::option(u"optFrau"_qs, u"weiblich"_qs, Frame2);
    Frame4 = Face::frame(u"Frame4"_qs, u"Aufnahme [nur bei Mitgl.]"_qs, page);
    lblEintritt = Face::label(u"lblEintritt"_qs, u"Aufn.- Datum:"_qs, Frame4);
    txtEintritt = field(u"txtEintritt"_qs, Frame4, dateLimit);
    lblAustritt = Face::label(u"lblAustritt"_qs, u"Austrittsdatum:"_qs, Frame4);
    txtAustritt = field(u"txtAustritt"_qs, Frame4, dateLimit);
    Frame14 = Face::frame(u"Frame14"_qs, u"Befreit (Arb.-Std.)  [nur bei Mitgl.]"_qs, page);
    optBefreit = Face::option(u"optBefreit"_qs, u"befreit"_qs, Frame14);
    optNBefreit = Face::option(u"optNBefreit"_qs, u"nicht befreit"_qs, Frame14);
    Frame3 = Face::frame(u"Frame3"_qs, u"Jahresbeitrag [nur bei Mitgl.]"_qs, page);
    optBezahlt = Face::option(u"optBezahlt"_qs, u"bezahlt"_qs, Frame3);
    optNBezahlt = Face::option(u"optNBezahlt"_qs, u"nicht bezahlt"_qs, Frame3);
    for (QRadioButton* first : {optMann, optNBefreit, optNBezahlt}) first->setChecked(true);
    for (TextBox* box : {txtEintritt, txtAustritt}) {
        box->setKeyFilter(&modRun::FilterDatum, Refused::WithTheWhole);
        box->setHoldsDate();
    }

    auto* dates = new QGridLayout(Frame4);
    dates->setHorizontalSpacing(Face::gap);
    Face::addField(dates, 0, lblEintritt, txtEintritt);
    Face::addField(dates, 1, lblAustritt, txtAustritt);
    dates->setColumnStretch(1, 1);
    auto* column = new QVBoxLayout;
    column->setSpacing(Face::gap);
    column->addWidget(optionPair(Frame2, optMann, optFrau));
    column->addWidget(Frame4);
    column->addWidget(optionPair(Frame14, optBefreit, optNBefreit));
    column->addWidget(optionPair(Frame3, optBezahlt, optNBezahlt));
    column->addStretch();
    return column;
}

void Kontakt::buildCommunication(QWidget* page) {
    Frame5 = Face::frame(u"Frame5"_qs, QString(), page);
    Label1 = Face::label(u"Label1"_qs, u"Tel. [privat] :"_qs, Frame5);
    txtTelPriv = field(u"txtTelPriv"_qs, Frame5, phoneLimit);
    lblTelGesch = Face::label(u"lblTelGesch"_qs, u"Tel. [gesch] :"_qs, Frame5);
    txtTelGesch = field(u"txtTelGesch"_qs, Frame5, phoneLimit);
    Label2 = Face::label(u"Label2"_qs, u"Mobil:"_qs, Frame5);
    txtMobil = field(u"txtMobil"_qs, Frame5, phoneLimit);
    lblFax = Face::label(u"lblFax"_qs, u"Fax:"_qs, Frame5);
    txtFax = field(u"txtFax"_qs, Frame5, phoneLimit);
    lblEMail = Face::label(u"lblEMail"_qs, u"EMail:"_qs, Frame5);
    txtEMail = field(u"txtEMail"_qs, Frame5, textLimit);
    for (TextBox* box : {txtTelPriv, txtTelGesch, txtMobil, txtFax})
        box->setKeyFilter(&modRun::FilterTelefon);
    QGridLayout* form = frameOnPage(page, Frame5);
    Face::addField(form, 0, Label1, txtTelPriv);
    Face::addField(form, 1, lblTelGesch, txtTelGesch);
    Face::addField(form, 2, Label2, txtMobil);
    Face::addField(form, 3, lblFax, txtFax);
    Face::addField(form, 4, lblEMail, txtEMail);
}

void Kontakt::buildBank(QWidget* page) {
    Frame6 = Face::frame(u"Frame6"_qs, QString(), page);
    lblKontoNr = Face::label(u"lblKontoNr"_qs, u"Konto-Nr:"_qs, Frame6);
    txtKontoNr = field(u"txtKontoNr"_qs, Frame6, textLimit);
    Label3 = Face::label(u"Label3"_qs, u"BLZ:"_qs, Frame6);
    txtBLZ = field(u"txtBLZ"_qs, Frame6, textLimit);
    lblKreditInstit = Face::label(u"lblKreditInstit"_qs, u"Kredit-Instit. :"_qs, Frame6);
    txtKInst = field(u"txtKInst"_qs, Frame6, textLimit);
    chkEinzug = Face::checkBox(u"chkEinzug"_qs, u"Bankeinzug"_qs, Frame6);
    for (TextBox* box : {txtKontoNr, txtBLZ}) box->setKeyFilter(&modRun::FilterZiffern);
    QGridLayout* form = frameOnPage(page, Frame6);
    Face::addField(form, 0, lblKontoNr, txtKontoNr);
    Face::addField(form, 1, Label3, txtBLZ);
    Face::addField(form, 2, lblKreditInstit, txtKInst);
    form->addWidget(chkEinzug, 3, 1);
}

void Kontakt::buildNote(QWidget* page) {
    Frame7 = Face::frame(u"Frame7"_qs, QString(), page);
    txtNotiz = new MemoBox(u"txtNotiz"_qs, Frame7);
    txtNotiz->setLimit(noteLimit);
    txtNotiz->setAccessibleName(u"Notizen"_qs);
    auto* inner = new QVBoxLayout(Frame7);
    inner->addWidget(txtNotiz);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(Face::gap, Face::gap, Face::gap, Face::gap);
    column->addWidget(Frame7);
}
