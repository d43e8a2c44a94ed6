#pragma once

#include "NavigationBar.h"
#include "Rahmen.h"
#include "Screen.h"
#include "Stage.h"
#include "StatusBar.h"

#include <QMenu>
#include <QMenuBar>

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
    void zeigeMitgliederliste() override;
    void loadKontMenu_Mitgl() override;
    void loadKontMenu_FAusw() override;
    void beendeStill() override;

    QMenuBar* const menuBar = new QMenuBar(this);
    NavigationBar* const ButtnBar = new NavigationBar(u"ButtnBar", this);
    Stage* const stage = new Stage(this);
    StatusBar* const StatusBar1 = new StatusBar(u"StatusBar1", this);

    QMenu* const mnuDatei = menu(u"mnuDatei", u"&Datei");
    QAction* const mnuBeenden = item(mnuDatei, u"mnuBeenden", u"&Beenden");
    QMenu* const mnuKontMenu_Mitgl = menu(u"mnuKontMenu_Mitgl", u"Kontextmenü_Mitgl");
    QAction* const mnuArbContr = item(mnuKontMenu_Mitgl, u"mnuArbContr", u"&Übernahme i. Arb.-Controlling");
    QAction* const mnuMitglInfo =
        item(mnuKontMenu_Mitgl, u"mnuMitglInfo", u"&Mitgliederinformationen anzeigen");
    QMenu* const mnuKontMenu_FAusw = menu(u"mnuKontMenu_FAusw", u"Kontextmenü_FAusw");
    QAction* const mnuFangInfo = item(mnuKontMenu_FAusw, u"mnuFangInfo", u"&Fang anzeigen");
    QMenu* const mnuTools = menu(u"mnuTools", u"&Tools");
    QAction* const mnuKomprimiere = item(mnuTools, u"mnuKomprimiere", u"&Datenbank komprimieren");
    QAction* const mnuRepariere = item(mnuTools, u"mnuRepariere", u"&Datenbank reparieren");
    QMenu* const mnuHilf = menu(u"mnuHilf", u"&?");
    QAction* const mnuHandbuch = item(mnuHilf, u"mnuHandbuch", u"&Handbuch\tF1");
    QAction* const mnuInfo = item(mnuHilf, u"mnuInfo", u"&Info");

private:
    QMenu* menu(QStringView name, QStringView caption);
    static QAction* item(QMenu* menu, QStringView name, QStringView caption);
    void connectMenus();
    void buildPanels();
    void buildAreaKeys();
    void keepMenuLetters(const Screen* front);
    void mnuBeenden_Click();
    void mnuInfo_Click();
};
