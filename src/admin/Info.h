#pragma once

#include "Layout.h"
#include "Screen.h"

/// Shows the program's name and version and the address of the club.
class Info : public Screen {
    Q_OBJECT

public:
    Info();

    void Form_Load() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    /// Shows the club's address as last saved. Call after each change of Session::Anschrift.
    void zeigeAnschrift();

    QLabel* const lblTitle = Layout::label(u"lblTitle", u"Uferwart Version 2.0", this);
    QLabel* const lblDescription = Layout::label(u"lblDescription",
                                                 u"Software für Angelsportvereine.\n"
                                                 u"- Professionelle Fangaufnahme\n"
                                                 u"- Fangauswertung mit Datenexport zu EXCEL\n"
                                                 u"- Fanglistendruck\n"
                                                 u"- Verwaltungsmöglichkeiten v. Mitgliedern u. Kontakten\n"
                                                 u"- Softwareunterstützes Verwalten der Arbeitsstunden u.s.w",
                                                 this);
    QGroupBox* const fraVerein = Layout::frame(u"fraVerein", u"Lizenziert für...", this);
    QLabel* const lblVerein = Layout::label(u"lblVerein", {}, fraVerein);
    QLabel* const lblStrasse = Layout::label(u"lblStrasse", {}, fraVerein);
    QLabel* const lblPLZ = Layout::label(u"lblPLZ", {}, fraVerein);
    QLabel* const lblOrt = Layout::label(u"lblOrt", {}, fraVerein);
    QLabel* const lblTelefon = Layout::label(u"lblTelefon", {}, fraVerein);
    QLabel* const lblHersteller = Layout::label(u"lblHersteller", u"Uferwart - die Gründer", this);
    QLabel* const lblRechte =
        Layout::label(u"lblRechte", u"Freie Software unter der MIT-Lizenz, ohne Gewähr.", this);
    QPushButton* const cmdSysInfo = Layout::button(u"cmdSysInfo", u"&System Info...", this);
    QPushButton* const cmdOK = Layout::button(u"cmdOK", u"OK", this);
};
