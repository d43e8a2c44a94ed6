#pragma once

#include "Screen.h"

class DataTable;
class Heading;
class QGroupBox;
class QLabel;
class TextBox;
class Toolbar;
class ValueLabel;

/// The categories of contacts. The category lists of other screens are filled from its grid.
class Katego : public Screen {
    Q_OBJECT

public:
    Katego();

    void Form_Deactivate() override;
    void Form_Paint() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    Heading* Ueberschrift;
    Toolbar* Toolbar1;

    QGroupBox* Frame2;
    DataTable* tblKatego;
    QLabel* Label2;
    ValueLabel* lblAnzahl;

    QGroupBox* Frame1;
    QLabel* lblKatN;
    ValueLabel* lblKategoNr;
    QLabel* Label1;
    TextBox* txtKatego;

private:
    void buildToolbar();
    void buildEntry();
    void buildTable();
    void Schliessen();
    void tblKatego_OnGridCellOpen(int row, int column);
};
