#pragma once

#include "Screen.h"

class ComboBox;
class DataTable;
class MemoBox;
class QCheckBox;
class QDateEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class TextBox;
class ValueLabel;

/// A window with one control of each kind, to try the player's hand on. `lblEreignis` tells the last event.
class Probe : public Screen {
    Q_OBJECT

public:
    Probe();

    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    TextBox* txtFrei;
    TextBox* txtZahl;  ///< digits only, selected as a whole when it gets the focus
    TextBox* txtScheu; ///< gives the focus away the first time
    MemoBox* txtNotiz;
    ComboBox* cboListe;
    ComboBox* cboFrei;
    QCheckBox* chkJa;
    QRadioButton* optEins;
    QRadioButton* optZwei;
    QDateEdit* datTag;
    QPushButton* cmdModal;
    QPushButton* cmdAus;
    QTabWidget* tabSeiten;
    DataTable* tblZwei;
    ValueLabel* lblEreignis;

private:
    void buildFields();
    void buildChoices();
    void buildTable();
    void connectFields();
    void tell(const QString& event);
    void showContextMenu();

    bool m_shy = true;
};

/// A modal screen that can open a further one.
class Innen : public Screen {
    Q_OBJECT

public:
    Innen();

    TextBox* txtInnen;
    QPushButton* cmdTiefer;
    QPushButton* cmdZu;
};

class Tief : public Screen {
    Q_OBJECT

public:
    Tief();

    QPushButton* cmdZu;
};
