#pragma once

#include "Rahmen.h"
#include "Screen.h"

class NavigationBar;
class QAction;
class QMenu;
class QMenuBar;
class Stage;
class StatusBar;

/// The frame: menus, navigation bar, the stage with the other screens, status bar. Form_Load starts the
/// program, Form_Unload ends it.
class Main : public Screen, public Rahmen {
    Q_OBJECT

public:
    Main();
    ~Main() override;

    void Form_Load() override;
    void Form_Unload() override;
    void Form_QueryUnload() override;

    void zeigeBereich(const QString& key) override;
    void binde(Screen& screen) override;
    void zeigeMitgliederliste() override;
    void loadKontMenu_Mitgl() override;
    void loadKontMenu_FAusw() override;
    void beendeStill() override;

    QMenuBar* menuBar;
    NavigationBar* ButtnBar;
    Stage* stage;
    StatusBar* StatusBar1;

    QMenu* mnuDatei;
    QAction* mnuBeenden;
    QMenu* mnuKontMenu_Mitgl;
    QAction* mnuArbContr;
    QAction* mnuMitglInfo;
    QMenu* mnuKontMenu_FAusw;
    QAction* mnuFangInfo;
    QMenu* mnuTools;
    QAction* mnuKomprimiere;
    QAction* mnuRepariere;
    QMenu* mnuHilf;
    QAction* mnuHandbuch;
    QAction* mnuInfo;

protected:
    // Switch the stage on and off: screens are activated only while the frame is visible.
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void buildMenus();
    void buildPanels();
    void buildAreaKeys();
    void keepMenuLetters(const Screen* front);
    void mnuBeenden_Click();
    void mnuInfo_Click();
};
