#include "System.h"

#include "DataTable.h"
#include "Face.h"
#include "Gitter.h"
#include "Heading.h"
#include "Screens.h"
#include "Tastenfilter.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "modSystem.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace {

// Without a row opened, it is the address that the user has been working on.
void sichere() { screen<System>().isEditing() ? modSystem::UpdateParameter() : modSystem::UpdateAdresse(); }

} // namespace

System::System()
    : Screen(u"System"_qs, u"Systemparameter"_qs) {
    Ueberschrift = new Heading(u"SYSTEMPARAMETER"_qs, this);
    Toolbar1 = new Toolbar(this);
    Toolbar1->addKeys({{u"tbSpeichern"_qs, u"&Speichern"_qs, u"Speichern"_qs, u"speichern"_qs, &sichere},
                       {u"tbAnzLoeschen"_qs, u"&Anz. löschen"_qs, u"Anzeige löschen"_qs,
                        u"anzeige-loeschen"_qs, &modSystem::LeereParameter}});
    buildAddress();
    buildGrid();
    buildParameters();

    QVBoxLayout* rest = Face::column(this, Ueberschrift, Toolbar1);
    auto* halves = new QHBoxLayout;
    halves->setSpacing(Face::gap);
    halves->addWidget(Frame3, 1);
    halves->addWidget(Frame1, 1);
    rest->addLayout(halves);
    rest->addWidget(Frame2, 1);

    on(tblSystem, &DataTable::OnGridCellOpen, [this](int row, int) { tblSystem_OnGridCellOpen(row); });
    modRun::connectGridFocus(tblSystem);
}

void System::buildAddress() {
    Frame3 = Face::frame(u"Frame3"_qs, u"Ihre Adressdaten..."_qs, this);
    auto* form = new QGridLayout(Frame3);
    const auto add = [&](const char16_t* name, const char16_t* text) {
        auto* box = new TextBox(QString::fromUtf16(name), Frame3);
        const int row = form->rowCount();
        Face::addField(form, row, Face::label(u"lbl%1"_qs.arg(row), QString::fromUtf16(text), Frame3), box);
        return box;
    };
    txtVerein = add(u"txtVerein", u"(Vereins-) Name:");
    txtStrasse = add(u"txtStrasse", u"Strasse:");
    txtPLZ = add(u"txtPLZ", u"PLZ:");
    txtOrt = add(u"txtOrt", u"Ort:");
    txtTelefon = add(u"txtTelefon", u"Telefon:");
}

void System::buildGrid() {
    Frame2 = Face::frame(u"Frame2"_qs, u"Aktuelle Systemparameter..."_qs, this);
    tblSystem = new DataTable(u"tblSystem"_qs, Frame2);
    tblSystem->setColumns({{u"Parameter"_qs, 240}, {u"Wert"_qs, 120, true}});
    auto* column = new QVBoxLayout(Frame2);
    column->addWidget(tblSystem);
}

void System::buildParameters() {
    Frame1 = Face::frame(u"Frame1"_qs, u"Systemparameter editieren..."_qs, this);
    auto* form = new QGridLayout(Frame1);
    const auto add = [&](int row, const char16_t* name, const char16_t* text) {
        auto* box = new TextBox(QString::fromUtf16(name), Frame1);
        // A comma can be typed into the fee, after a beep.
        box->setKeyFilter(&modRun::FilterZiffern, Refused::Admitted);
        Face::addField(form, row, Face::label(u"lblParam%1"_qs.arg(row), QString::fromUtf16(text), Frame1),
                       box);
        return box;
    };
    txtJB = add(0, u"txtJB", u"Jahresbeitrag:");
    txtFJahr = add(1, u"txtFJahr", u"Akt. Fangjahr:");
    txtArbStd = add(2, u"txtArbStd", u"Arb.- Pflichtstunden:");
    lblStd = Face::label(u"lblStd"_qs, u"Std."_qs, Frame1);
    form->addWidget(lblStd, 2, 2);
    form->setRowStretch(3, 1);
}

void System::Form_Deactivate() { modSystem::LeereParameter(); }

void System::tblSystem_OnGridCellOpen(int row) {
    if (row < 0) return;
    modSystem::LeereParameter();
    modSystem::LadeParameter(row);
    openRecord(tblSystem->cellText(row, 0), row);
}
