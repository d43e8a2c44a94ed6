#pragma once

#include "ComboBox.h"
#include "DataTable.h"
#include "Layout.h"
#include "Screen.h"
#include "TextBox.h"

/// The stocking plan: entry fields above a grid with the planned stockings of one year. The CSV file and the
/// printed plan show the rows of the grid.
class Besatzung : public Screen {
    Q_OBJECT

public:
    Besatzung();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;

    void zeigeAnzahl() { lblAnzahl->setText(QString::number(tblBList->rowCount())); }

    Heading* const Ueberschrift = new Heading(u"BESATZ - PLAN", this);
    Toolbar* const Toolbar1 = buildToolbar();

    QGroupBox* const Frame1 = Layout::frame(u"Frame1", u"Besatzung", this);
    QLabel* const Label1 = Layout::label(u"Label1", u"Besatz - Plan f. Jahr:", Frame1);
    ComboBox* const cboBJahr = new ComboBox(u"cboBJahr", Frame1);
    QLabel* const Label3 = Layout::label(u"Label3", u"Fischart:", Frame1);
    ComboBox* const cboFArt = new ComboBox(u"cboFArt", Frame1);
    QLabel* const Label4 = Layout::label(u"Label4", u"Gewässer:", Frame1);
    ComboBox* const cboGName = new ComboBox(u"cboGName", Frame1);
    QLabel* const Label2 = Layout::label(u"Label2", u"Besatz.- Nr:", Frame1);
    ValueLabel* const lblBNr = new ValueLabel(u"lblBNr", Frame1);
    QLabel* const Label5 = Layout::label(u"Label5", u"Zeitpunkt:", Frame1);
    TextBox* const txtZeit = new TextBox(u"txtZeit", Frame1);
    QLabel* const Label6 = Layout::label(u"Label6", u"Menge:", Frame1);
    TextBox* const txtMenge = new TextBox(u"txtMenge", Frame1);
    QLabel* const Label7 = Layout::label(u"Label7", u"i. Kg", Frame1);

    DataTable* const tblBList = new DataTable(u"tblBList", this);
    QLabel* const Label8 = Layout::label(u"Label8", u"Anzahl:", this);
    ValueLabel* const lblAnzahl = new ValueLabel(u"lblAnzahl", this);

private:
    Toolbar* buildToolbar();
    void layOutEntry();
    void setUpGrid();

    void cboBJahr_Click();
    void leereOffenen();
    void tbExcel_Click();
    void drucke(const QString& wort);
    void tblBList_OnGridCellOpen(int row);
};
