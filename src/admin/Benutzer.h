#pragma once

#include "Screen.h"

#include <QVector>

class ComboBox;
class DataTable;
class Heading;
class QCheckBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QTabWidget;
class TextBox;
class Toolbar;
class ValueLabel;

/// The users of the program on one page, the groups with the users' rights on the other.
class Benutzer : public Screen {
    Q_OBJECT

public:
    static constexpr int userPage = 0;
    static constexpr int groupPage = 1;

    Benutzer();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Paint() override;
    void Form_Deactivate() override;

    Heading* Ueberschrift;
    Toolbar* Toolbar1;
    QTabWidget* tabBV;

    QGroupBox* Frame2;
    QLabel* lblBI;
    ValueLabel* lblBNr;
    QLabel* lblB;
    TextBox* txtBenutzer;
    QLabel* lblP;
    TextBox* txtPassw;
    QLabel* lblBest;
    TextBox* txtPasswBest;
    QLabel* lblBG;
    ComboBox* cboBG;
    QGroupBox* Frame3;
    DataTable* tblBenutzer;
    QLabel* lblBAnz;
    ValueLabel* lblBAnzahl;

    QGroupBox* Frame4;
    QLabel* lblGruppN;
    ValueLabel* lblGNr;
    QLabel* lblBGru;
    TextBox* txtGruppe;
    QLabel* lblZA;
    QVector<QCheckBox*> Zugriffe; ///< one per right, in the order of rechte()
    QGroupBox* Frame1;
    DataTable* tblZugriff;
    QLabel* Label1;
    ValueLabel* lblGAnzahl;

private:
    void buildToolbar();
    QWidget* buildUserPage();
    void buildUserEntry();
    void buildUserGrid();
    QWidget* buildGroupPage();
    void buildGroupEntry();
    void addRights(QGridLayout* screen, int row);
    void buildGroupGrid();
    void connectEvents();

    void tabBV_Click(int page);
    void tblBenutzer_OnGridCellOpen(int row);
    void tblZugriff_OnGridCellOpen(int row);
    void tblZugriff_OnGridLostFocus();

    int m_page = userPage;
};
