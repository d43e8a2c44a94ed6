#pragma once

#include "Screen.h"

class ComboBox;
class DataTable;
class QLabel;
class QPushButton;
class TextBox;
class ValueLabel;

/// Finds contacts by a word, for the contact overview or for the work ledger.
class SuchKont : public Screen {
    Q_OBJECT

public:
    SuchKont();

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
    void oeffneKontakt(int row, int column);
    void tblSuch_OnGridCellOpen(int row, int column);
};
