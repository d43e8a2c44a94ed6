#pragma once

#include "DataTable.h"
#include "Layout.h"
#include "Screen.h"
#include "TextBox.h"
#include "ValueLabel.h"

/// The categories of contacts. The category lists of other screens are filled from its grid.
class Katego : public Screen {
    Q_OBJECT

    static constexpr int nameLimit = 50;

public:
    Katego();

    void Form_Deactivate() override;
    void Form_Paint() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    Heading* const Ueberschrift = new Heading(u"KONTAKT-KATEGORIEN", this);
    Toolbar* const Toolbar1 = buildToolbar();

    QGroupBox* const Frame1 = Layout::frame(u"Frame1", u"Kategorien hinzuf. o. editieren...", this);
    QLabel* const lblKatN = Layout::label(u"lblKatN", u"Katego. - Nr:", Frame1);
    ValueLabel* const lblKategoNr = new ValueLabel(u"lblKategoNr", Frame1);
    QLabel* const Label1 = Layout::label(u"Label1", u"Kategoriebezeichnung:", Frame1);
    TextBox* const txtKatego = new TextBox(u"txtKatego", Frame1, nameLimit);

    QGroupBox* const Frame2 = Layout::frame(u"Frame2", u"Aufgenommene Kategorien...", this);
    DataTable* const tblKatego = new DataTable(u"tblKatego", Frame2);
    QLabel* const Label2 = Layout::label(u"Label2", u"Anzahl:", Frame2);
    ValueLabel* const lblAnzahl = new ValueLabel(u"lblAnzahl", Frame2);

private:
    Toolbar* buildToolbar();
    void layOutEntry();
    void layOutTable();
    void Schliessen();
    void tblKatego_OnGridCellOpen(int row);
};
