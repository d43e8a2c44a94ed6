#pragma once

#include "ComboBox.h"
#include "DataTable.h"
#include "Layout.h"
#include "MemoBox.h"
#include "ProgressBar.h"
#include "Screen.h"
#include "TextBox.h"

/// The catch book: input fields above a grid with the entries of one month of one year.
class Fangbuch : public Screen {
    Q_OBJECT

    static constexpr int monthLimit = 2;
    static constexpr int noteLimit = 255;

public:
    Fangbuch();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    /// Shows the number of entries in the grid.
    void zeigeAnzahl() { lblAnzahl->setText(QString::number(tblFList->rowCount())); }

    Heading* const Ueberschrift = new Heading(u"FANGBUCH", this);
    Toolbar* const Toolbar1 = buildToolbar();

    QGroupBox* const fraNr2 = Layout::frame(u"fraNr2", u"Einträge...", this);
    QLabel* const lblFArt = Layout::label(u"lblFArt", u"Fischart:", fraNr2);
    ComboBox* const cboFArt =
        new ComboBox(u"cboFArt", fraNr2, ComboBox::Kind::DropDownList, ComboBox::Order::Sorted);
    QLabel* const lblGewaesser = Layout::label(u"lblGewaesser", u"Gewässer:", fraNr2);
    ComboBox* const cboGName = new ComboBox(u"cboGName", fraNr2);
    QLabel* const lblAnzGew = Layout::label(u"lblAnzGew", u"Anzahl | Gewicht:", fraNr2);
    TextBox* const txtAnzahl = new TextBox(u"txtAnzahl", fraNr2);
    TextBox* const txtGewicht = new TextBox(u"txtGewicht", fraNr2);
    QLabel* const lblEinheit = Layout::label(u"lblEinheit", u"i. Gramm", fraNr2);
    QLabel* const lblFMonat = Layout::label(u"lblFMonat", u"Fangmonat:", fraNr2);
    TextBox* const txtMonNr = new TextBox(u"txtMonNr", fraNr2, monthLimit);
    TextBox* const txtFangMonat = new TextBox(u"txtFangMonat", fraNr2);
    QLabel* const lblNotiz = Layout::label(u"lblNotiz", u"Notizen...", fraNr2);
    MemoBox* const txtNotiz = new MemoBox(u"txtNotiz", fraNr2, noteLimit);
    QLabel* const lblFJahrBez = Layout::label(u"lblFJahrBez", u"Fangjahr:", fraNr2);
    ComboBox* const cboFJahr = new ComboBox(u"cboFJahr", fraNr2);
    QLabel* const lblFNrBez = Layout::label(u"lblFNrBez", u"Fang - Nr:", fraNr2);
    ValueLabel* const lblFNr = new ValueLabel(u"lblFNr", fraNr2);

    QGroupBox* const Frame1 = Layout::frame(u"Frame1", u"Fangbuchtabelle...", this);
    QLabel* const Label2 = Layout::label(u"Label2", u"Fangbucheintr. f. Monat:", Frame1);
    ComboBox* const cboSelMonat = new ComboBox(u"cboSelMonat", Frame1);
    QLabel* const Label3 = Layout::label(u"Label3", u"Einträge i. Tabelle:", Frame1);
    ValueLabel* const lblAnzahl = new ValueLabel(u"lblAnzahl", Frame1);
    QLabel* const Label1 = Layout::label(u"Label1", u"Anzahl [gesamt]:", Frame1);
    ValueLabel* const lblGesAnz = new ValueLabel(u"lblGesAnz", Frame1);
    ProgressBar* const pb = new ProgressBar(u"pb", Frame1);
    DataTable* const tblFList = new DataTable(u"tblFList", Frame1);

private:
    Toolbar* buildToolbar();
    void layOutEntry();
    void layOutTable();
    void connectEvents();

    void zeigeAnzahlen();
    void Auswahl_Click(bool jahr);
    void txtMonNr_LostFocus();
    void tblFList_OnGridCellOpen(int row);
    /// Keys pressed in txtMonNr since it got the focus. The second one moves the focus to the note.
    qint16 m_tastenZaehler = 0;
};
