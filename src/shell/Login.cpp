#include "Login.h"

#include "Main.h"
#include "Screens.h"
#include "modStart.h"

using namespace Qt::StringLiterals;

Login::Login()
    : Screen(u"Login"_s, u"Uferwart - ANMELDUNG -"_s) {
    standAlone();
    txtPassw->setEchoMode(QLineEdit::Password);
    Layout::addFields(new QGridLayout(Frame1), {{lblB, txtBenutzer}, {lblP, txtPassw}});
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
    on(cmdEsc, &QPushButton::clicked, [this](bool) { Form_QueryUnload(); });
}

void Login::Form_Paint() { txtBenutzer->setFocus(); }

bool Login::Form_KeyDown(int key, Qt::KeyboardModifiers) {
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (isEnter) modStart::Anmelden();
    if (key == Qt::Key_Escape) Form_QueryUnload();
    return isEnter || key == Qt::Key_Escape;
}

void Login::Form_QueryUnload() {
    unload<Login>();
    unload<Main>();
}
