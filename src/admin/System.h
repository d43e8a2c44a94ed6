#pragma once

#include "DataTable.h"
#include "Layout.h"
#include "Screen.h"
#include "TextBox.h"

/// The club's parameters and address.
class System : public Screen {
    Q_OBJECT

public:
    System();

    void Form_Deactivate() override;

    Heading* const Ueberschrift = new Heading(u"SYSTEMPARAMETER", this);
    Toolbar* const Toolbar1 = buildToolbar();

    QGroupBox* const Frame3 = Layout::frame(u"Frame3", u"Ihre Adressdaten...", this);
    TextBox* const txtVerein = new TextBox(u"txtVerein", Frame3);
    TextBox* const txtStrasse = new TextBox(u"txtStrasse", Frame3);
    TextBox* const txtPLZ = new TextBox(u"txtPLZ", Frame3);
    TextBox* const txtOrt = new TextBox(u"txtOrt", Frame3);
    TextBox* const txtTelefon = new TextBox(u"txtTelefon", Frame3);

    QGroupBox* const Frame2 = Layout::frame(u"Frame2", u"Aktuelle Systemparameter...", this);
    DataTable* const tblSystem = new DataTable(u"tblSystem", Frame2);

    QGroupBox* const Frame1 = Layout::frame(u"Frame1", u"Systemparameter editieren...", this);
    TextBox* const txtJB = new TextBox(u"txtJB", Frame1);
    TextBox* const txtFJahr = new TextBox(u"txtFJahr", Frame1);
    TextBox* const txtArbStd = new TextBox(u"txtArbStd", Frame1);

private:
    Toolbar* buildToolbar();
    void layOutAddress();
    void layOutParameters();
};
