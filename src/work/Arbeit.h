#pragma once

#include "Screen.h"

class ComboBox;
class DataTable;
class DateBox;
class Heading;
class MemoBox;
class QGroupBox;
class QLabel;
class QPushButton;
class TextBox;
class Toolbar;
class ValueLabel;

/// The work ledger: the bookings of one member in one year, with input fields beside them. Only the value
/// labels hold the member and the sums.
class Arbeit : public Screen {
    Q_OBJECT

public:
    Arbeit();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    /// Call before showing the screen with a member: the next activation then does not open the search.
    void erwarteMitglied() { m_uebergabe = true; }

    Heading* Ueberschrift;
    Toolbar* Toolbar1;
    QGroupBox* Frame1;

    QGroupBox* Frame3;
    QPushButton* cmdMList;
    QPushButton* cmdSuch;
    QLabel* Label1;
    ComboBox* cboArbJahr;
    QLabel* Label2;
    ValueLabel* lblKNr;
    QLabel* Label3;
    ValueLabel* lblNName;
    QLabel* Label4;
    ValueLabel* lblVName;

    QGroupBox* Frame2;
    DataTable* tblArbStd;
    QLabel* lblGStd;
    ValueLabel* lblGesStd;
    QLabel* Label10;
    QLabel* Label6;
    ValueLabel* lblPflStd;
    QLabel* Label8;
    QLabel* Label9;
    ValueLabel* lblErgStd;
    QLabel* Label5;

    QGroupBox* Frame7;
    QLabel* lblArbN;
    ValueLabel* lblArbNr;
    QLabel* lblDatum;
    DateBox* pvDate;
    QLabel* lblArbZeit;
    TextBox* txtArbStd;
    QLabel* lblStd;
    QLabel* lblArbNotiz;
    MemoBox* txtArbNotiz;

private:
    void buildToolbar();
    void buildMember();
    void buildEntry();
    void buildTable();
    void layOutMember();
    void layOutEntry();
    void layOutTable();
    void connectEvents();
    QPushButton* addIconButton(const QString& name, const QString& icon, const QString& tip);

    void drucke(const QString& wort);
    void cmdSuch_Click();
    void cmdMList_Click();
    void cboArbJahr_Click();
    void tblArbStd_OnGridCellOpen(int row, int column);

    bool m_uebergabe = false;
};
