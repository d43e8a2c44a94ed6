#pragma once

#include "Screen.h"

class ComboBox;
class DataTable;
class Heading;
class MemoBox;
class ProgressBar;
class QGroupBox;
class QLabel;
class TextBox;
class Toolbar;
class ValueLabel;

/// The catch book: input fields above a grid with the entries of one month of one year.
class Fangbuch : public Screen {
    Q_OBJECT

public:
    Fangbuch();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    Heading* Ueberschrift;
    Toolbar* Toolbar1;

    QGroupBox* fraNr2;
    QLabel* lblFJahrBez;
    ComboBox* cboFJahr;
    QLabel* lblFNrBez;
    ValueLabel* lblFNr;
    QLabel* lblFArt;
    ComboBox* cboFArt;
    QLabel* lblGewaesser;
    ComboBox* cboGName;
    QLabel* lblAnzGew;
    TextBox* txtAnzahl;
    TextBox* txtGewicht;
    QLabel* lblEinheit;
    QLabel* lblFMonat;
    TextBox* txtMonNr;
    TextBox* txtFangMonat;
    QLabel* lblNotiz;
    MemoBox* txtNotiz;

    QGroupBox* Frame1;
    DataTable* tblFList;
    QLabel* Label2;
    ComboBox* cboSelMonat;
    QLabel* Label3;
    ValueLabel* lblAnzahl;
    QLabel* Label1;
    ValueLabel* lblGesAnz;
    ProgressBar* pb;

private:
    void buildToolbar();
    void buildEntry();
    void layOutEntry();
    void buildTable();
    void connectEvents();

    void beobachteBasisdaten();
    void zeigeAnzahlen();
    void Auswahl_Click(bool jahr);
    void txtMonNr_KeyPress();
    void txtMonNr_KeyDone();
    void txtMonNr_LostFocus();
    void pruefeMonat();
    void tblFList_OnGridCellOpen(int row);
    /// Keys pressed in txtMonNr since it got the focus. The second one moves the focus to the note.
    qint16 m_tastenZaehler = 0;
};
