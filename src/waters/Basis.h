#pragma once

#include "Screen.h"

#include <functional>

class DataTable;
class Heading;
class MemoBox;
class QGroupBox;
class QLabel;
class QTabWidget;
class TextBox;
class Toolbar;
class ValueLabel;

/// Kinds of fish on one page, waters on the other. All other screens fill their name lists from its grids.
class Basis : public Screen {
    Q_OBJECT

public:
    Basis();

    void Form_Load() override;
    void Form_Paint() override;
    void Form_Deactivate() override;

    /// A change of a name in the database: changed ("UPDATE") or deleted ("LOESCHEN"). For grids that show
    /// the name.
    struct Verweis {
        QString name;
        QString modus;
        QString alterName; ///< empty for "LOESCHEN"
    };
    /// Called after the change has been written.
    std::function<void(const Verweis&)> fischGeaendert;
    std::function<void(const Verweis&)> gewaesserGeaendert;

    Heading* Ueberschrift;
    Toolbar* Toolbar1;
    QTabWidget* TabBasis;

    QGroupBox* Frame1;
    QLabel* lblFischNr;
    ValueLabel* lblFNr;
    QLabel* lblFischArt;
    TextBox* txtFArt;
    QLabel* lblFNotiz;
    MemoBox* txtFNotiz;
    QLabel* lblÜberschr;
    DataTable* tblFBasis;
    QLabel* lblFAnz;
    ValueLabel* lblFAnzahl;

    QGroupBox* Frame2;
    QLabel* lblGewNr;
    ValueLabel* lblGNr;
    QLabel* lblGewBez;
    TextBox* txtGName;
    QLabel* lblGNotiz;
    MemoBox* txtGNotiz;
    QLabel* lblÜbersch2;
    DataTable* tblGBasis;
    QLabel* lblGAnz;
    ValueLabel* lblGAnzahl;

private:
    void buildToolbar();
    void buildFishPage();
    void buildWaterPage();
    void tblFBasis_OnGridCellOpen(int row, int column);
    void tblGBasis_OnGridCellOpen(int row, int column);
};
