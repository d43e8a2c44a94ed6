#include "Info.h"

#include "Screens.h"
#include "Session.h"
#include "modSysInfo.h"

using namespace Qt::StringLiterals;

Info::Info()
    : Screen(u"Info"_s, u"Info"_s) {
    // A window of its own, so that an unfinished entry on another screen stays as it is.
    standAlone();
    QFont titleFont(u"Comic Sans MS"_s);
    titleFont.setPointSize(16);
    lblTitle->setFont(titleFont);
    auto* address = new QVBoxLayout(fraVerein);
    for (QLabel* value : {lblVerein, lblStrasse, lblPLZ, lblOrt, lblTelefon}) {
        value->setWordWrap(true);
        address->addWidget(value);
    }
    auto* keys = new QHBoxLayout;
    keys->addWidget(cmdSysInfo);
    keys->addStretch();
    keys->addWidget(cmdOK);
    QVBoxLayout* column = Layout::column(this);
    for (QWidget* part : QVector<QWidget*>{lblTitle, lblDescription, fraVerein, lblHersteller, lblRechte})
        column->addWidget(part);
    column->addStretch();
    column->addLayout(keys);

    on(cmdSysInfo, &QPushButton::clicked, [](bool) { modSysInfo::StartSysInfo(); });
    on(cmdOK, &QPushButton::clicked, [](bool) { unload<Info>(); });
}

void Info::Form_Load() {
    zeigeAnschrift();
    cmdOK->setFocus();
}

bool Info::Form_KeyDown(int key, Qt::KeyboardModifiers) {
    if (key == Qt::Key_Escape) unload<Info>();
    return key == Qt::Key_Escape;
}

void Info::zeigeAnschrift() {
    auto line = session().Anschrift.begin();
    for (QLabel* label : {lblVerein, lblStrasse, lblPLZ, lblOrt, lblTelefon}) label->setText(*line++);
}
