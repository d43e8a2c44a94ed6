#pragma once

#include "Screen.h"

class ComboBox;
class DataTable;
class QLabel;
class QPushButton;
class TextBox;
class ValueLabel;

class SuchKont;

/// What the search offers to one of the screens that open it, and what becomes of a hit there.
struct Suchweg {
    /// Fills the list of categories.
    void (*fuelleKategorien)(ComboBox*);
    /// Whether the first entry of that list stands for all categories.
    bool ersterIstAlle;
    /// The user has opened this row of the results.
    void (*treffer)(SuchKont&, int row, int column);
};

/// Finds contacts by a word. SuchAufrufer tells which of the registered ways a search goes.
class SuchKont : public Screen {
    Q_OBJECT

public:
    SuchKont();

    /// Called by a screen before it opens the search with this number in SuchAufrufer.
    static void registriere(qint16 aufrufer, const Suchweg& weg);

    void Form_Load() override;
    void Form_Paint() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    QLabel* Label1;
    TextBox* txtSuch;
    QLabel* Label2;
    ComboBox* cboKatego;
    QPushButton* cmdSuch;
    DataTable* tblSuch;
    QLabel* Label3;
    ValueLabel* lblGefDS;

private:
    void build();
    void cmdSuch_Click();
    void tblSuch_OnGridCellOpen(int row, int column);
};
