#include "ComboBox.h"
#include "Kontakt.h"
#include "Layout.h"
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

using namespace Qt::StringLiterals;

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

/// Puts the frame at the top of the page. Returns the layout inside the frame.
QGridLayout* frameOnPage(QWidget* page, QGroupBox* frame) {
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(Layout::gap, Layout::gap, Layout::gap, Layout::gap);
    column->addWidget(frame);
    column->addStretch();
    auto* screen = new QGridLayout(frame);
    screen->setHorizontalSpacing(Layout::gap);
    screen->setColumnStretch(1, 1);
    return screen;
}

/// Puts two options side by side into the frame.
QGroupBox* optionPair(QGroupBox* frame, QRadioButton* left, QRadioButton* right) {
    auto* row = new QHBoxLayout(frame);
    row->addWidget(left, 1);
    row->addWidget(right, 1);
    return frame;
}

} // namespace

Kontakt::Kontakt()
    : Screen(u"Kontakt"_s, u"Kontakt"_s) {
    buildToolbar();
    TabKont = new QTabWidget(this);
    TabKont->setObjectName(u"TabKont"_s);
    QWidget* global = addPage(TabKont, u"Global"_s);
    buildPerson(global);
    layOutGlobal(global);
    buildCommunication(addPage(TabKont, u"Kommunikation"_s));
    buildBank(addPage(TabKont, u"Bank"_s));
    buildNote(addPage(TabKont, u"Info"_s));
    QVBoxLayout* column = Layout::column(this);
    column->addWidget(Toolbar1);
    column->addWidget(TabKont, 1);

    on(cboKatego, &ComboBox::Click, [] { modKontakt::SetzeMitglFelder(); });
}

void Kontakt::buildToolbar() {
    Toolbar1 = Layout::recordToolbar(
        this, [this] { Speichern(); }, [this] { Loeschen(); }, &modKontakt::KontaktAnzeigeLoeschen);
}

TextBox* Kontakt::field(const QString& name, QWidget* parent, int limit) {
    auto* box = new TextBox(name, parent);
    box->setMaxLength(limit);
    return box;
}

void Kontakt::buildPerson(QWidget* page) {
    Frame1 = Layout::frame(u"Frame1"_s, QString(), page);
    lblKontNr = Layout::label(u"lblKontNr"_s, u"Kontakt-Nr:"_s, Frame1);
    lblKNr = new ValueLabel(u"lblKNr"_s, Frame1);
    lblKatego = Layout::label(u"lblKatego"_s, u"Kontakt-Katego.:"_s, Frame1);
    cboKatego = new ComboBox(u"cboKatego"_s, Frame1);
    lblAnr = Layout::label(u"lblAnr"_s, u"Anrede:"_s, Frame1);
    txtAnrede = field(u"txtAnrede"_s, Frame1, textLimit);
    lblOrg = Layout::label(u"lblOrg"_s, u"Firma:"_s, Frame1);
    txtFirma = field(u"txtFirma"_s, Frame1, textLimit);
    lblName = Layout::label(u"lblName"_s, u"Nachname:"_s, Frame1);
    txtNName = field(u"txtNName"_s, Frame1, textLimit);
    lblVName = Layout::label(u"lblVName"_s, u"Vorname:"_s, Frame1);
    txtVName = field(u"txtVName"_s, Frame1, textLimit);
    lblStrasse = Layout::label(u"lblStrasse"_s, u"Strasse:"_s, Frame1);
    txtStrasse = field(u"txtStrasse"_s, Frame1, textLimit);
    lblPLZ = Layout::label(u"lblPLZ"_s, u"PLZ:"_s, Frame1);
    txtPLZ = field(u"txtPLZ"_s, Frame1, zipLimit);
    txtPLZ->setKeyFilter(&modRun::FilterZiffern);
    lblOrt = Layout::label(u"lblOrt"_s, u"Ort:"_s, Frame1);
    txtOrt = field(u"txtOrt"_s, Frame1, textLimit);
    lblGebDatum = Layout::label(u"lblGebDatum"_s, u"Geb. - Datum:"_s, Frame1);
    txtGebDat = field(u"txtGebDat"_s, Frame1, dateLimit);
    txtGebDat->setKeyFilter(&modRun::FilterDatum, Refused::WithTheWhole);
    txtGebDat->setHoldsDate();
    chkJG = Layout::checkBox(u"chkJG"_s, u"Jugendgruppe"_s, Frame1);
}

void Kontakt::layOutGlobal(QWidget* page) {
    auto* screen = new QGridLayout(Frame1);
    screen->setHorizontalSpacing(Layout::gap);
    screen->setColumnStretch(1, 1);
    const std::pair<QLabel*, QWidget*> rows[] = {
        {lblKontNr, lblKNr}, {lblKatego, cboKatego}, {lblAnr, txtAnrede},     {lblOrg, txtFirma},
        {lblName, txtNName}, {lblVName, txtVName},   {lblStrasse, txtStrasse}};
    int row = 0;
    for (const auto& [label, control] : rows) Layout::addField(screen, row++, label, control);
    // Postal code and town share a line, as on an envelope.
    auto* town = new QHBoxLayout;
    town->setSpacing(Layout::gap);
    town->addWidget(txtPLZ);
    town->addWidget(lblOrt);
    town->addWidget(txtOrt, 1);
    txtPLZ->setFixedWidth(64);
    screen->addWidget(lblPLZ, row, 0);
    screen->addLayout(town, row++, 1);
    auto* birth = new QHBoxLayout;
    birth->setSpacing(2 * Layout::gap);
    birth->addWidget(txtGebDat);
    birth->addWidget(chkJG);
    birth->addStretch();
    txtGebDat->setFixedWidth(112);
    screen->addWidget(lblGebDatum, row, 0);
    screen->addLayout(birth, row, 1);
    lblPLZ->setBuddy(txtPLZ);
    lblOrt->setBuddy(txtOrt);
    lblGebDatum->setBuddy(txtGebDat);
    txtPLZ->setAccessibleName(u"PLZ"_s);
    txtOrt->setAccessibleName(u"Ort"_s);
    txtGebDat->setAccessibleName(u"Geb. - Datum"_s);

    auto* left = new QVBoxLayout;
    left->addWidget(Frame1);
    left->addStretch();
    auto* sides = new QHBoxLayout(page);
    sides->setContentsMargins(Layout::gap, Layout::gap, Layout::gap, Layout::gap);
    sides->setSpacing(Layout::gap);
    sides->addLayout(left, 3);
    sides->addLayout(buildMember(page), 2);
}

QLayout* Kontakt::buildMember(QWidget* page) {
    Frame2 = Layout::frame(u"Frame2"_s, u"Geschlecht..."_s, page);
    optMann = Layout::option(u"optMann"_s, u"männlich"_s, Frame2);
    optFrau = Layout::option(u"optFrau"_s, u"weiblich"_s, Frame2);
    Frame4 = Layout::frame(u"Frame4"_s, u"Aufnahme [nur bei Mitgl.]"_s, page);
    lblEintritt = Layout::label(u"lblEintritt"_s, u"Aufn.- Datum:"_s, Frame4);
    txtEintritt = field(u"txtEintritt"_s, Frame4, dateLimit);
    lblAustritt = Layout::label(u"lblAustritt"_s, u"Austrittsdatum:"_s, Frame4);
    txtAustritt = field(u"txtAustritt"_s, Frame4, dateLimit);
    Frame14 = Layout::frame(u"Frame14"_s, u"Befreit (Arb.-Std.)  [nur bei Mitgl.]"_s, page);
    optBefreit = Layout::option(u"optBefreit"_s, u"befreit"_s, Frame14);
    optNBefreit = Layout::option(u"optNBefreit"_s, u"nicht befreit"_s, Frame14);
    Frame3 = Layout::frame(u"Frame3"_s, u"Jahresbeitrag [nur bei Mitgl.]"_s, page);
    optBezahlt = Layout::option(u"optBezahlt"_s, u"bezahlt"_s, Frame3);
    optNBezahlt = Layout::option(u"optNBezahlt"_s, u"nicht bezahlt"_s, Frame3);
    for (QRadioButton* first : {optMann, optNBefreit, optNBezahlt}) first->setChecked(true);
    for (TextBox* box : {txtEintritt, txtAustritt}) {
        box->setKeyFilter(&modRun::FilterDatum, Refused::WithTheWhole);
        box->setHoldsDate();
    }

    auto* dates = new QGridLayout(Frame4);
    dates->setHorizontalSpacing(Layout::gap);
    Layout::addField(dates, 0, lblEintritt, txtEintritt);
    Layout::addField(dates, 1, lblAustritt, txtAustritt);
    dates->setColumnStretch(1, 1);
    auto* column = new QVBoxLayout;
    column->setSpacing(Layout::gap);
    column->addWidget(optionPair(Frame2, optMann, optFrau));
    column->addWidget(Frame4);
    column->addWidget(optionPair(Frame14, optBefreit, optNBefreit));
    column->addWidget(optionPair(Frame3, optBezahlt, optNBezahlt));
    column->addStretch();
    return column;
}

void Kontakt::buildCommunication(QWidget* page) {
    Frame5 = Layout::frame(u"Frame5"_s, QString(), page);
    Label1 = Layout::label(u"Label1"_s, u"Tel. [privat] :"_s, Frame5);
    txtTelPriv = field(u"txtTelPriv"_s, Frame5, phoneLimit);
    lblTelGesch = Layout::label(u"lblTelGesch"_s, u"Tel. [gesch] :"_s, Frame5);
    txtTelGesch = field(u"txtTelGesch"_s, Frame5, phoneLimit);
    Label2 = Layout::label(u"Label2"_s, u"Mobil:"_s, Frame5);
    txtMobil = field(u"txtMobil"_s, Frame5, phoneLimit);
    lblFax = Layout::label(u"lblFax"_s, u"Fax:"_s, Frame5);
    txtFax = field(u"txtFax"_s, Frame5, phoneLimit);
    lblEMail = Layout::label(u"lblEMail"_s, u"EMail:"_s, Frame5);
    txtEMail = field(u"txtEMail"_s, Frame5, textLimit);
    for (TextBox* box : {txtTelPriv, txtTelGesch, txtMobil, txtFax})
        box->setKeyFilter(&modRun::FilterTelefon);
    QGridLayout* screen = frameOnPage(page, Frame5);
    Layout::addField(screen, 0, Label1, txtTelPriv);
    Layout::addField(screen, 1, lblTelGesch, txtTelGesch);
    Layout::addField(screen, 2, Label2, txtMobil);
    Layout::addField(screen, 3, lblFax, txtFax);
    Layout::addField(screen, 4, lblEMail, txtEMail);
}

void Kontakt::buildBank(QWidget* page) {
    Frame6 = Layout::frame(u"Frame6"_s, QString(), page);
    lblKontoNr = Layout::label(u"lblKontoNr"_s, u"Konto-Nr:"_s, Frame6);
    txtKontoNr = field(u"txtKontoNr"_s, Frame6, textLimit);
    Label3 = Layout::label(u"Label3"_s, u"BLZ:"_s, Frame6);
    txtBLZ = field(u"txtBLZ"_s, Frame6, textLimit);
    lblKreditInstit = Layout::label(u"lblKreditInstit"_s, u"Kredit-Instit. :"_s, Frame6);
    txtKInst = field(u"txtKInst"_s, Frame6, textLimit);
    chkEinzug = Layout::checkBox(u"chkEinzug"_s, u"Bankeinzug"_s, Frame6);
    for (TextBox* box : {txtKontoNr, txtBLZ}) box->setKeyFilter(&modRun::FilterZiffern);
    QGridLayout* screen = frameOnPage(page, Frame6);
    Layout::addField(screen, 0, lblKontoNr, txtKontoNr);
    Layout::addField(screen, 1, Label3, txtBLZ);
    Layout::addField(screen, 2, lblKreditInstit, txtKInst);
    screen->addWidget(chkEinzug, 3, 1);
}

void Kontakt::buildNote(QWidget* page) {
    Frame7 = Layout::frame(u"Frame7"_s, QString(), page);
    txtNotiz = new MemoBox(u"txtNotiz"_s, Frame7, noteLimit);
    txtNotiz->setAccessibleName(u"Notizen"_s);
    auto* inner = new QVBoxLayout(Frame7);
    inner->addWidget(txtNotiz);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(Layout::gap, Layout::gap, Layout::gap, Layout::gap);
    column->addWidget(Frame7);
}
