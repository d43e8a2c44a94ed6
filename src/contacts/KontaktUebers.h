#pragma once

#include "DataTable.h"
#include "Layout.h"
#include "Screen.h"

/// Lists the contacts under their categories. The contacts of open categories get into the file for serial
/// letters.
class KontaktUebers : public Screen {
    Q_OBJECT

public:
    KontaktUebers();

    void Form_Load() override;
    void Form_Deactivate() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    /// True if the last press on any category opened it, false if it closed it.
    bool LetzterKlappZustand = false;

    Heading* const Ueberschrift = new Heading(u"KONTAKT - ÜBERSICHT", this);
    Toolbar* const Toolbar1 = buildToolbar();
    DataTable* const tblKUebers = new DataTable(u"tblKUebers", this);
    QLabel* const Label2 = Layout::label(u"Label2", u"Gefunden:", this);
    QLabel* const Label1 = Layout::label(u"Label1", {}, this);

private:
    Toolbar* buildToolbar();
    void BearbeiteKategorien();
    void ErzeugeSerienbriefDatei();
    void Suchen();
    /// Opens a closed category, closes an open one. KategoOffen tells which.
    void klappe(int row);
    void tblKUebers_OnGridCellDown(int row, int column);
    void tblKUebers_OnGridCellOpen(int row, int column);

    /// True if the category is open; the index is its row when pressed. Empty until the first press.
    std::vector<bool> KategoOffen;
};
