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

/// Kinds of fish and waters, a page each. Its grids are where all other screens take their name lists from.
class Basis : public Screen {
    Q_OBJECT

public:
    Basis();

    void Form_Load() override;
    void Form_Paint() override;
    void Form_Deactivate() override;

    /// Told when a name in the file has become another ("UPDATE") or is gone ("LOESCHEN"), so that a list
    /// which shows it is kept in step.
    struct Verweis {
        QString name;
        QString modus;
        QString alterName;
    };
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
