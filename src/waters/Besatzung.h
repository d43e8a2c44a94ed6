#pragma once

#include "Screen.h"

class ComboBox;
class DataTable;
class Heading;
class QGroupBox;
class QLabel;
class TextBox;
class Toolbar;
class ValueLabel;

/// The stocking plan: entry fields above a grid with the planned stockings of one year. The CSV file and the
/// printed plan show the rows of the grid.
class Besatzung : public Screen {
    Q_OBJECT

public:
    Besatzung();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;

    Heading* Ueberschrift;
    Toolbar* Toolbar1;

    QGroupBox* Frame1;
    QLabel* Label1;
    ComboBox* cboBJahr;
    QLabel* Label2;
    ValueLabel* lblBNr;
    QLabel* Label3;
    ComboBox* cboFArt;
    QLabel* Label4;
    ComboBox* cboGName;
    QLabel* Label5;
    TextBox* txtZeit;
    QLabel* Label6;
    TextBox* txtMenge;
    QLabel* Label7;

    DataTable* tblBList;
    QLabel* Label8;
    ValueLabel* lblAnzahl;

private:
    void buildToolbar();
    void buildEntry();
    void layOutEntry();
    void buildGrid();
    QWidget* layOutCount();
    void connectEvents();

    void zeigeAnzahl();
    void waehleJahr(const QString& jahr);
    void cboBJahr_Click();
    void leereOffenen();
    void tbExcel_Click();
    void drucke(const QString& wort);
    void tblBList_OnGridCellOpen(int row);
};
