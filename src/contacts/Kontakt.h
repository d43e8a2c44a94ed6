#pragma once

#include "Screen.h"

class ComboBox;
class MemoBox;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLayout;
class QRadioButton;
class QTabWidget;
class TextBox;
class Toolbar;
class ValueLabel;

/// Shows and edits one contact or member. Show it with ShowModal().
class Kontakt : public Screen {
    Q_OBJECT

public:
    Kontakt();

    void Form_Load() override;
    void Form_QueryUnload() override;

    /// Makes the fields read-only until the screen is closed.
    void sperre();
    bool istGesperrt() const { return m_gesperrt; }

    /// True if opened from the search. The contact's row in the overview's grid is then unknown.
    bool AusSuche = false;

    Toolbar* Toolbar1;
    QTabWidget* TabKont;

    QGroupBox* Frame1;
    QLabel* lblKontNr;
    ValueLabel* lblKNr;
    QLabel* lblKatego;
    ComboBox* cboKatego;
    QLabel* lblAnr;
    TextBox* txtAnrede;
    QLabel* lblOrg;
    TextBox* txtFirma;
    QLabel* lblName;
    TextBox* txtNName;
    QLabel* lblVName;
    TextBox* txtVName;
    QLabel* lblStrasse;
    TextBox* txtStrasse;
    QLabel* lblPLZ;
    TextBox* txtPLZ;
    QLabel* lblOrt;
    TextBox* txtOrt;
    QLabel* lblGebDatum;
    TextBox* txtGebDat;
    QCheckBox* chkJG;
    QGroupBox* Frame2;
    QRadioButton* optMann;
    QRadioButton* optFrau;
    QGroupBox* Frame4;
    QLabel* lblEintritt;
    TextBox* txtEintritt;
    QLabel* lblAustritt;
    TextBox* txtAustritt;
    QGroupBox* Frame14;
    QRadioButton* optBefreit;
    QRadioButton* optNBefreit;
    QGroupBox* Frame3;
    QRadioButton* optBezahlt;
    QRadioButton* optNBezahlt;

    QGroupBox* Frame5;
    QLabel* Label1;
    TextBox* txtTelPriv;
    QLabel* lblTelGesch;
    TextBox* txtTelGesch;
    QLabel* Label2;
    TextBox* txtMobil;
    QLabel* lblFax;
    TextBox* txtFax;
    QLabel* lblEMail;
    TextBox* txtEMail;

    QGroupBox* Frame6;
    QLabel* lblKontoNr;
    TextBox* txtKontoNr;
    QLabel* Label3;
    TextBox* txtBLZ;
    QLabel* lblKreditInstit;
    TextBox* txtKInst;
    QCheckBox* chkEinzug;

    QGroupBox* Frame7;
    MemoBox* txtNotiz;

private:
    void buildToolbar();
    void buildPerson(QWidget* page);
    QLayout* buildMember(QWidget* page);
    void layOutGlobal(QWidget* page);
    void buildCommunication(QWidget* page);
    void buildBank(QWidget* page);
    void buildNote(QWidget* page);
    TextBox* field(const QString& name, QWidget* parent, int limit);

    void Speichern();
    void Loeschen();

    bool m_gesperrt = false;
};
