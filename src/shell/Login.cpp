#include "Login.h"

#include "Heading.h"
#include "Layout.h"
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

using namespace Qt::StringLiterals;

Login::Login()
    : Screen(u"Login"_s, u"Uferwart - ANMELDUNG -"_s) {
    standAlone();
    Picture1 = Layout::label(u"Picture1"_s, QString(), this);
    Picture1->setPixmap(Theme::icon(u"login"_s).pixmap(QSize(64, 64), devicePixelRatio()));
    Ueberschrift = new Heading(u"ANMELDUNG"_s, this);
    Frame1 = Layout::frame(u"Frame1"_s, QString(), this);
    lblB = Layout::label(u"lblB"_s, u"Benutername:"_s, Frame1);
    txtBenutzer = new TextBox(u"txtBenutzer"_s, Frame1);
    lblP = Layout::label(u"lblP"_s, u"Passwort:"_s, Frame1);
    txtPassw = new TextBox(u"txtPassw"_s, Frame1);
    txtPassw->setEchoMode(QLineEdit::Password);
    cmdOK = Layout::button(u"cmdOK"_s, u"OK"_s, this);
    cmdEsc = Layout::button(u"cmdEsc"_s, u"Abbrechen"_s, this);

    auto* fields = new QGridLayout(Frame1);
    Layout::addField(fields, 0, lblB, txtBenutzer);
    Layout::addField(fields, 1, lblP, txtPassw);
    auto* head = new QHBoxLayout;
    head->addWidget(Picture1);
    head->addWidget(Ueberschrift, 1);
    auto* keys = new QHBoxLayout;
    keys->addStretch();
    keys->addWidget(cmdOK);
    keys->addWidget(cmdEsc);
    auto* column = Layout::column(this);
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
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (isEnter) modStart::Anmelden();
    if (key == Qt::Key_Escape) cmdEsc_Click();
    return isEnter || key == Qt::Key_Escape;
}

void Login::cmdEsc_Click() {
    unload<Login>();
    unload<Main>();
}
