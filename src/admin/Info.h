#pragma once

#include "Screen.h"

class QGroupBox;
class QLabel;
class QPushButton;

/// The name of the program, its purpose, and the club that uses it.
class Info : public Screen {
    Q_OBJECT

public:
    Info();

    void Form_Load() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    /// The club's address as last saved into the labels.
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
