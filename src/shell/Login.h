#pragma once

#include "Screen.h"

class Heading;
class QGroupBox;
class QLabel;
class QPushButton;
class TextBox;

/// Asks for name and password before any other screen shows.
class Login : public Screen {
    Q_OBJECT

public:
    Login();

    void Form_Paint() override;
    void Form_QueryUnload() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    QLabel* Picture1;
    Heading* Ueberschrift;
    QGroupBox* Frame1;
    QLabel* lblB;
    TextBox* txtBenutzer;
    QLabel* lblP;
    TextBox* txtPassw;
    QPushButton* cmdOK;
    QPushButton* cmdEsc;

private:
    void cmdEsc_Click();
};
