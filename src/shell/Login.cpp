#include "Login.h"

#include "Face.h"
#include "Heading.h"
#include "Main.h"
#include "Screens.h"
#include "TextBox.h"
#include "Theme.h"
#include "modStart.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QIcon>
#include <QPushButton>

Login::Login()
    : Screen(u"Login"_qs, u"Uferwart - ANMELDUNG -"_qs) {
    standAlone();
    Picture1 = Face::label(u"Picture1"_qs, QString(), this);
    Picture1->setPixmap(Theme::icon(u"login"_qs).pixmap(QSize(64, 64), devicePixelRatio()));
    Ueberschrift = new Heading(u"ANMELDUNG"_qs, this);
    Frame1 = Face::frame(u"Frame1"_qs, QString(), this);
    lblB = Face::label(u"lblB"_qs, u"Benutername:"_qs, Frame1);
    txtBenutzer = new TextBox(u"txtBenutzer"_qs, Frame1);
    lblP = Face::label(u"lblP"_qs, u"Passwort:"_qs, Frame1);
    txtPassw = new TextBox(u"txtPassw"_qs, Frame1);
    txtPassw->setEchoMode(QLineEdit::Password);
    cmdOK = Face::button(u"cmdOK"_qs, u"OK"_qs, this);
    cmdEsc = Face::button(u"cmdEsc"_qs, u"Abbrechen"_qs, this);

    auto* fields = new QGridLayout(Frame1);
    Face::addField(fields, 0, lblB, txtBenutzer);
    Face::addField(fields, 1, lblP, txtPassw);
    auto* head = new QHBoxLayout;
    head->addWidget(Picture1);
    head->addWidget(Ueberschrift, 1);
    auto* keys = new QHBoxLayout;
    keys->addStretch();
    keys->addWidget(cmdOK);
    keys->addWidget(cmdEsc);
    auto* column = Face::column(this);
    column->addLayout(head);
    column->addWidget(Frame1);
    column->addLayout(keys);
    setFixedSize(QSize(380, 232).expandedTo(sizeHint()));

    on(cmdOK, &QPushButton::clicked, [](bool) { modStart::Anmelden(); });
    on(cmdEsc, &QPushButton::clicked, [this](bool) { cmdEsc_Click(); });
}

void Login::Form_Paint() { txtBenutzer->setFocus(); }

void Login::Form_QueryUnload() { cmdEsc_Click(); }

bool Login::Form_KeyDown(int key, Qt::KeyboardModifiers) {
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        modStart::Anmelden();
        return true;
    case Qt::Key_Escape:
        cmdEsc_Click();
        return true;
    default:
        return false;
    }
}

void Login::cmdEsc_Click() {
    unload<Login>();
    unload<Main>();
}
