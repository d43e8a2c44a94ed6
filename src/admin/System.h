#pragma once

#include "Screen.h"

class DataTable;
class Heading;
class QGroupBox;
class QLabel;
class TextBox;
class Toolbar;

/// The club's parameters and address.
class System : public Screen {
    Q_OBJECT

public:
    System();

    void Form_Deactivate() override;

    Heading* Ueberschrift;
    Toolbar* Toolbar1;

    QGroupBox* Frame3;
    TextBox* txtVerein;
    TextBox* txtStrasse;
    TextBox* txtPLZ;
    TextBox* txtOrt;
    TextBox* txtTelefon;

    QGroupBox* Frame2;
    DataTable* tblSystem;

    QGroupBox* Frame1;
    TextBox* txtJB;
    TextBox* txtFJahr;
    TextBox* txtArbStd;
    QLabel* lblStd;

private:
    void buildAddress();
    void buildGrid();
    void buildParameters();
    void tblSystem_OnGridCellOpen(int row);
};
