#include "System.h"

#include "DataTable.h"
#include "Gitter.h"
#include "Heading.h"
#include "Layout.h"
#include "Screens.h"
#include "Tastenfilter.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "modSystem.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

// An open grid row means that a parameter was edited; otherwise it was the address.
void sichere() { the<System>().isEditing() ? modSystem::UpdateParameter() : modSystem::UpdateAdresse(); }

} // namespace

System::System()
    : Screen(u"System"_s, u"Systemparameter"_s) {
    Ueberschrift = new Heading(u"SYSTEMPARAMETER"_s, this);
    Toolbar1 = new Toolbar(this);
    Toolbar1->addKeys({{u"tbSpeichern"_s, u"&Speichern"_s, u"Speichern"_s, u"speichern"_s, &sichere},
                       {u"tbAnzLoeschen"_s, u"&Anz. löschen"_s, u"Anzeige löschen"_s, u"anzeige-loeschen"_s,
                        &modSystem::LeereParameter}});
    buildAddress();
    buildGrid();
    buildParameters();

    QVBoxLayout* rest = Layout::column(this, Ueberschrift, Toolbar1);
    auto* halves = new QHBoxLayout;
    halves->setSpacing(Layout::gap);
    halves->addWidget(Frame3, 1);
    halves->addWidget(Frame1, 1);
    rest->addLayout(halves);
    rest->addWidget(Frame2, 1);

    on(tblSystem, &DataTable::OnGridCellOpen, [this](int row, int) { tblSystem_OnGridCellOpen(row); });
    modRun::connectGridFocus(tblSystem);
}

void System::buildAddress() {
    Frame3 = Layout::frame(u"Frame3"_s, u"Ihre Adressdaten..."_s, this);
    auto* screen = new QGridLayout(Frame3);
    const auto add = [&](const char16_t* name, const char16_t* text) {
        auto* box = new TextBox(QString::fromUtf16(name), Frame3);
        const int row = screen->rowCount();
        Layout::addField(screen, row, Layout::label(u"lbl%1"_s.arg(row), QString::fromUtf16(text), Frame3),
                         box);
        return box;
    };
    txtVerein = add(u"txtVerein", u"(Vereins-) Name:");
    txtStrasse = add(u"txtStrasse", u"Strasse:");
    txtPLZ = add(u"txtPLZ", u"PLZ:");
    txtOrt = add(u"txtOrt", u"Ort:");
    txtTelefon = add(u"txtTelefon", u"Telefon:");
}

void System::buildGrid() {
    Frame2 = Layout::frame(u"Frame2"_s, u"Aktuelle Systemparameter..."_s, this);
    tblSystem = new DataTable(u"tblSystem"_s, Frame2);
    tblSystem->setColumns({{u"Parameter"_s, 240}, {u"Wert"_s, 120, true}});
    auto* column = new QVBoxLayout(Frame2);
    column->addWidget(tblSystem);
}

void System::buildParameters() {
    Frame1 = Layout::frame(u"Frame1"_s, u"Systemparameter editieren..."_s, this);
    auto* screen = new QGridLayout(Frame1);
    const auto add = [&](int row, const char16_t* name, const char16_t* text) {
        auto* box = new TextBox(QString::fromUtf16(name), Frame1);
        // Admits other characters after a beep, so that the fee can have a comma.
        box->setKeyFilter(&modRun::FilterZiffern, Refused::Admitted);
        Layout::addField(screen, row,
                         Layout::label(u"lblParam%1"_s.arg(row), QString::fromUtf16(text), Frame1), box);
        return box;
    };
    txtJB = add(0, u"txtJB", u"Jahresbeitrag:");
    txtFJahr = add(1, u"txtFJahr", u"Akt. Fangjahr:");
    txtArbStd = add(2, u"txtArbStd", u"Arb.- Pflichtstunden:");
    lblStd = Layout::label(u"lblStd"_s, u"Std."_s, Frame1);
    screen->addWidget(lblStd, 2, 2);
    screen->setRowStretch(3, 1);
}

void System::Form_Deactivate() { modSystem::LeereParameter(); }

void System::tblSystem_OnGridCellOpen(int row) {
    if (row < 0) return;
    modSystem::LeereParameter();
    modSystem::LadeParameter(row);
    openRecord(tblSystem->cellText(row, 0), row);
}
