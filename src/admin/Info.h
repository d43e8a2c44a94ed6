#pragma once

#include "Screen.h"

class QGroupBox;
class QLabel;
class QPushButton;

/// Shows the program's name and version and the address of the club.
class Info : public Screen {
    Q_OBJECT

public:
    Info();

    void Form_Load() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    /// Shows the club's address as last saved. Call after each change of Session::Anschrift.
    void zeigeAnschrift();

    QLabel* lblTitle;
    QLabel* lblDescription;
    QGroupBox* fraVerein;
    QLabel* lblVerein;
    QLabel* lblStrasse;
    QLabel* lblPLZ;
    QLabel* lblOrt;
    QLabel* lblTelefon;
    QLabel* lblHersteller;
    QLabel* lblRechte;
    QPushButton* cmdSysInfo;
    QPushButton* cmdOK;

private:
    QLabel* addValue(const QString& name);
    void cmdOK_Click();
};
