#pragma once

#include "Layout.h"
#include "Screen.h"
#include "TextBox.h"

/// Asks for name and password before any other screen shows.
class Login : public Screen {
    Q_OBJECT

public:
    Login();

    void Form_Paint() override;
    void Form_QueryUnload() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    QLabel* const Picture1 = Layout::picture(u"Picture1", u"login", {64, 64}, this);
    Heading* const Ueberschrift = new Heading(u"ANMELDUNG", this);
    QGroupBox* const Frame1 = Layout::frame(u"Frame1", {}, this);
    QLabel* const lblB = Layout::label(u"lblB", u"Benutername:", Frame1);
    TextBox* const txtBenutzer = new TextBox(u"txtBenutzer", Frame1);
    QLabel* const lblP = Layout::label(u"lblP", u"Passwort:", Frame1);
    TextBox* const txtPassw = new TextBox(u"txtPassw", Frame1);
    QPushButton* const cmdOK = Layout::button(u"cmdOK", u"OK", this);
    QPushButton* const cmdEsc = Layout::button(u"cmdEsc", u"Abbrechen", this);
};
