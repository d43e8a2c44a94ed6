#pragma once

#include "Screen.h"
#include "Vergleich.h"

class ComboBox;
class DataTable;
class Heading;
class ProgressBar;
class QCheckBox;
class QGroupBox;
class QLabel;
class QRadioButton;
class TextBox;
class Toolbar;
class ValueLabel;

/// Lists members by a free combination of filters, on demand with the hours they owe and have worked. Two
/// printed lists are made from its grid.
class MitglList : public Screen {
    Q_OBJECT

public:
    MitglList();

    void Form_Load() override;
    void Form_Activate() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    /// True shows the three columns of hours instead of address, telephone and birthday.
    void setHourView(bool on);

    Heading* Ueberschrift;
    Toolbar* Toolbar1;

    QGroupBox* Frame6;
    QCheckBox* chkGebDat;
    ComboBox* cboOptGeb01;
    TextBox* txtGeb01;
    ComboBox* cboOptGeb02;
    TextBox* txtGeb02;
    QCheckBox* chkEintritt;
    ComboBox* cboOptTritt01;
    TextBox* txtTritt01;
    ComboBox* cboOptTritt02;
    TextBox* txtTritt02;
    QCheckBox* chkGeschl;
    QRadioButton* optMann;
    QRadioButton* optFrau;
    QCheckBox* chkJBeitrag;
    QRadioButton* optBezahlt;
    QRadioButton* optNBezahlt;
    QCheckBox* chkStatus;
    QRadioButton* optAktiv;
    QRadioButton* optPassiv;
    QCheckBox* chkBefreit;
    QRadioButton* optBefrJa;
    QRadioButton* optBefrNein;
    QCheckBox* chkAusgMitgl;
    QRadioButton* optAusgJa;
    QRadioButton* optAusgNein;
    QCheckBox* chkJG;
    QRadioButton* optJGJa;
    QRadioButton* optJGNein;
    QCheckBox* chkArbStd;
    QRadioButton* optStdJa;
    QRadioButton* optStdNein;
    QCheckBox* chkArbAnz;
    ComboBox* cboArbJahr;
    QLabel* Label1;
    TextBox* txtInfo;

    DataTable* tblMList;
    QLabel* lblAnzDS;
    ValueLabel* lblGefDS;
    ProgressBar* pb;

private:
    void buildToolbar();
    void buildDateFilters();
    void buildChoices();
    void buildHours();
    void buildGrid();
    void buildFoot();
    void layOutFilters();
    QWidget* hourLine();
    QWidget* layOutFoot();
    void connectEvents();

    Vergleich addBound(const QString& list, const QString& box, const QString& spoken);
    /// Adds two options, one of which is always on. Screen readers read the text of `spoken` before each.
    void addOptions(const QCheckBox* spoken, QRadioButton*& first, const QString& firstName,
                    const QString& firstCaption, QRadioButton*& second, const QString& secondName,
                    const QString& secondCaption);
    /// Makes the check box enable and disable its controls and empty the grid.
    void connectFilter(QCheckBox* box, const QVector<QWidget*>& controls);

    void tbSuch_Click();
    void tbEsc_Click();
    void drucke(const QString& wort);
    void tblMList_OnGridCellDown(int row);
    void tblMList_OnGridCellOpen(int row);
    void tblMList_OnGridCellMenu();

    QString m_arbJahr; ///< the year last chosen for the hours
};
