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
class TextBox;
class Toolbar;
class ValueLabel;

/// Lists catches by a free combination of filters, with sums. The CSV file and the printed list are made from
/// its grid.
class Fangauswertung : public Screen {
    Q_OBJECT

public:
    Fangauswertung();

    void Form_Load() override;
    void Form_Activate() override;

    Heading* Ueberschrift;
    Toolbar* Toolbar1;

    QGroupBox* Frame1;
    QCheckBox* chkArchiv;
    ComboBox* cboFJahr;
    QCheckBox* chkFArt;
    ComboBox* cboFArt;
    QCheckBox* chkGName;
    ComboBox* cboGName;
    QCheckBox* chkFMonat;
    ComboBox* cboFMonat;
    QLabel* Label1;
    QLabel* Label2;
    QCheckBox* chkAnzahl;
    ComboBox* cboOptAnz01;
    TextBox* txtAnz01;
    ComboBox* cboOptAnz02;
    TextBox* txtAnz02;
    QCheckBox* chkGewicht;
    ComboBox* cboOptGew01;
    TextBox* txtGew01;
    ComboBox* cboOptGew02;
    TextBox* txtGew02;

    DataTable* tblFAusw;
    QLabel* lblAnzDS;
    ValueLabel* lblGefDS;
    QLabel* lblSAnz;
    ValueLabel* lblSumAnz;
    QLabel* lblSGew;
    ValueLabel* lblSumGew;
    ProgressBar* pb;

private:
    void buildToolbar();
    void buildLists();
    void buildBounds();
    void buildGrid();
    void layOutFilters();
    QWidget* layOutSums();
    void connectEvents();

    ComboBox* addList(const QString& name, QCheckBox* captionedBy);
    Vergleich addBound(const QString& list, const QString& box, const QString& spoken);
    /// Makes the check box enable and disable its controls.
    void connectFilter(QCheckBox* box, const QVector<QWidget*>& controls);

    void tbSuch_Click();
    void tbExcel_Click();
    void drucke(const QString& wort);
    void tblFAusw_OnGridCellDown(int row);
    void tblFAusw_OnGridCellOpen(int row);
    void tblFAusw_OnGridCellMenu();
};
