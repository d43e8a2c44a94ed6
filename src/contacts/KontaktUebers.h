#pragma once

#include "Screen.h"

#include <vector>

class DataTable;
class Heading;
class QLabel;
class Toolbar;

/// The contacts under their categories. Which categories are open also decides who gets into the file for
/// serial letters.
class KontaktUebers : public Screen {
    Q_OBJECT

public:
    KontaktUebers();

    void Form_Load() override;
    void Form_Deactivate() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    Heading* Ueberschrift;
    /// What the last press on a category has left behind, of any category: true if it opened one.
    bool LetzterKlappZustand = false;

    Toolbar* Toolbar1;
    DataTable* tblKUebers;
    QLabel* Label2;
    QLabel* Label1;

private:
    void buildToolbar();
    void BearbeiteKategorien();
    void ErzeugeSerienbriefDatei();
    void Suchen();
    /// Opens or closes a category, whichever its flag says it is not.
    void klappe(int row);
    void tblKUebers_OnGridCellDown(int row, int column);
    void tblKUebers_OnGridCellOpen(int row, int column);

    /// By the row of the moment: true if the category is open. Empty until the first press.
    std::vector<bool> KategoOffen;
};
