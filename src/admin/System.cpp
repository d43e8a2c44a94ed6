#include "System.h"

#include "Gitter.h"
#include "Tastenfilter.h"
#include "modSystem.h"

using namespace Qt::StringLiterals;

System::System()
    : Screen(u"System"_s, u"Systemparameter"_s) {
    layOutAddress();
    layOutParameters();
    tblSystem->setColumns({{u"Parameter"_s, 240}, {u"Wert"_s, 120, true}});
    (new QVBoxLayout(Frame2))->addWidget(tblSystem);
    auto* halves = new QHBoxLayout;
    halves->setSpacing(Layout::gap);
    halves->addWidget(Frame3, 1);
    halves->addWidget(Frame1, 1);
    QVBoxLayout* rest = Layout::column(this, Ueberschrift, Toolbar1);
    rest->addLayout(halves);
    rest->addWidget(Frame2, 1);

    on(tblSystem, &DataTable::OnGridCellOpen, [](int row, int) { modSystem::LadeParameter(row); });
    modRun::connectGridFocus(tblSystem);
}

Toolbar* System::buildToolbar() {
    // An open grid row means that a parameter was edited; otherwise it was the address.
    const auto save = [this] { isEditing() ? modSystem::UpdateParameter() : modSystem::UpdateAdresse(); };
    return new Toolbar(this, {{u"tbSpeichern"_s, u"&Speichern"_s, u"Speichern"_s, u"speichern"_s, save},
                              {u"tbAnzLoeschen"_s, u"&Anz. löschen"_s, u"Anzeige löschen"_s,
                               u"anzeige-loeschen"_s, &modSystem::LeereParameter}});
}

void System::layOutAddress() {
    const auto label = [this](QStringView text) { return Layout::label({}, text, Frame3); };
    Layout::addFields(new QGridLayout(Frame3), {{label(u"(Vereins-) Name:"), txtVerein},
                                                {label(u"Strasse:"), txtStrasse},
                                                {label(u"PLZ:"), txtPLZ},
                                                {label(u"Ort:"), txtOrt},
                                                {label(u"Telefon:"), txtTelefon}});
}

void System::layOutParameters() {
    // Admits other characters after a beep, so that the fee can have a comma.
    for (TextBox* box : {txtJB, txtFJahr, txtArbStd})
        box->setKeyFilter(&modRun::FilterZiffern, Refused::Admitted);
    const auto label = [this](QStringView text) { return Layout::label({}, text, Frame1); };
    auto* screen = new QGridLayout(Frame1);
    Layout::addFields(screen, {{label(u"Jahresbeitrag:"), txtJB},
                               {label(u"Akt. Fangjahr:"), txtFJahr},
                               {label(u"Arb.- Pflichtstunden:"), txtArbStd}});
    screen->addWidget(label(u"Std."), 2, 2);
    screen->setRowStretch(3, 1);
}

void System::Form_Deactivate() { modSystem::LeereParameter(); }
