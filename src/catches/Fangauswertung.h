#pragma once

#include "ComboBox.h"
#include "DataTable.h"
#include "Layout.h"
#include "ProgressBar.h"
#include "Screen.h"
#include "TextBox.h"
#include "Vergleich.h"

#include <array>

/// Lists catches by a free combination of filters, with sums. The CSV file and the printed list are made from
/// its grid.
class Fangauswertung : public Screen {
    Q_OBJECT

public:
    Fangauswertung();

    void Form_Load() override;
    void Form_Activate() override;

    Heading* const Ueberschrift = new Heading(u"FANGAUSWERTUNG", this);
    Toolbar* const Toolbar1 = buildToolbar();

    QGroupBox* const Frame1 = Layout::frame(u"Frame1", u"Liste generieren...", this);
    QCheckBox* const chkArchiv = Layout::checkBox(u"chkArchiv", u"Fangjahr", Frame1);
    ComboBox* const cboFJahr = new ComboBox(u"cboFJahr", Frame1);
    QCheckBox* const chkFMonat = Layout::checkBox(u"chkFMonat", u"Fangmonat...", Frame1);
    ComboBox* const cboFMonat = new ComboBox(u"cboFMonat", Frame1);
    QCheckBox* const chkFArt = Layout::checkBox(u"chkFArt", u"Fischart...", Frame1);
    ComboBox* const cboFArt = new ComboBox(u"cboFArt", Frame1);
    QCheckBox* const chkGName = Layout::checkBox(u"chkGName", u"Gewässer...", Frame1);
    ComboBox* const cboGName = new ComboBox(u"cboGName", Frame1);
    QLabel* const Label1 = Layout::label(u"Label1", u"- Untergrenze -", Frame1);
    QLabel* const Label2 = Layout::label(u"Label2", u"- Obergrenze -", Frame1);
    QCheckBox* const chkAnzahl = Layout::checkBox(u"chkAnzahl", u"Anzahl...", Frame1);
    ComboBox* const cboOptAnz01 = new ComboBox(u"cboOptAnz01", Frame1);
    TextBox* const txtAnz01 = new TextBox(u"txtAnz01", Frame1);
    ComboBox* const cboOptAnz02 = new ComboBox(u"cboOptAnz02", Frame1);
    TextBox* const txtAnz02 = new TextBox(u"txtAnz02", Frame1);
    QCheckBox* const chkGewicht = Layout::checkBox(u"chkGewicht", u"Gewicht i. Gramm...", Frame1);
    ComboBox* const cboOptGew01 = new ComboBox(u"cboOptGew01", Frame1);
    TextBox* const txtGew01 = new TextBox(u"txtGew01", Frame1);
    ComboBox* const cboOptGew02 = new ComboBox(u"cboOptGew02", Frame1);
    TextBox* const txtGew02 = new TextBox(u"txtGew02", Frame1);

    DataTable* const tblFAusw = new DataTable(u"tblFAusw", this);
    QLabel* const lblAnzDS = Layout::label(u"lblAnzDS", u"Gefunden:", this);
    ValueLabel* const lblGefDS = new ValueLabel(u"lblGefDS", this);
    QLabel* const lblSAnz = Layout::label(u"lblSAnz", u"Summe -Anzahl-:", this);
    ValueLabel* const lblSumAnz = new ValueLabel(u"lblSumAnz", this);
    QLabel* const lblSGew = Layout::label(u"lblSGew", u"Summe -Gewicht-:", this);
    ValueLabel* const lblSumGew = new ValueLabel(u"lblSumGew", this);
    ProgressBar* const pb = new ProgressBar(u"pb", this);

    /// A filter by one entry of a list.
    struct Auswahl {
        QCheckBox* filter;
        ComboBox* liste;
    };
    const std::array<Auswahl, 4> auswahlen = {
        {{chkArchiv, cboFJahr}, {chkFMonat, cboFMonat}, {chkFArt, cboFArt}, {chkGName, cboGName}}};

    /// A filter by the bounds of a field of the table Fang.
    struct Grenzen {
        QStringView feld;
        QCheckBox* filter;
        Vergleich unten;
        Vergleich oben;
    };
    const std::array<Grenzen, 2> grenzen = {
        {{u"Anzahl", chkAnzahl, {cboOptAnz01, txtAnz01}, {cboOptAnz02, txtAnz02}},
         {u"Gewicht", chkGewicht, {cboOptGew01, txtGew01}, {cboOptGew02, txtGew02}}}};

private:
    Toolbar* buildToolbar();
    void layOutFilters();
    void layOutBounds(QGridLayout* screen);
    void setUpGrid();
    QWidget* sums();

    void tbSuch_Click();
    void tbExcel_Click();
    void drucke(const QString& wort);
    void tblFAusw_OnGridCellOpen(int row);
};
