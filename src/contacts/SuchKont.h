#pragma once

#include "Screen.h"

class ComboBox;
class DataTable;
class QLabel;
class QPushButton;
class TextBox;
class ValueLabel;

class SuchKont;

/// The search as one of its callers needs it: which categories it offers and what a hit does.
struct Suchweg {
    /// Fills the list of categories.
    void (*fuelleKategorien)(ComboBox*);
    /// True if the first entry of that list means all categories.
    bool ersterIstAlle;
    /// Called when the user opens a row of the results.
    void (*treffer)(SuchKont&, int row, int column);
};

/// Finds contacts by a word. The session's SuchAufrufer selects the registered Suchweg.
class SuchKont : public Screen {
    Q_OBJECT

public:
    SuchKont();

    /// Call before opening the search with SuchAufrufer set to `aufrufer`.
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
