#include "Info.h"

#include "Layout.h"
#include "Screens.h"
#include "Session.h"
#include "modSysInfo.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

Info::Info()
    : Screen(u"Info"_s, u"Info"_s) {
    // A window of its own, so that an unfinished entry on another screen stays as it is.
    standAlone();
    lblTitle = Layout::label(u"lblTitle"_s, u"Uferwart Version 2.0"_s, this);
    QFont titleFont(u"Comic Sans MS"_s);
    titleFont.setPointSize(16);
    lblTitle->setFont(titleFont);
    lblDescription = Layout::label(u"lblDescription"_s,
                                   u"Software für Angelsportvereine.\n"
                                   u"- Professionelle Fangaufnahme\n"
                                   u"- Fangauswertung mit Datenexport zu EXCEL\n"
                                   u"- Fanglistendruck\n"
                                   u"- Verwaltungsmöglichkeiten v. Mitgliedern u. Kontakten\n"
                                   u"- Softwareunterstützes Verwalten der Arbeitsstunden u.s.w"_s,
                                   this);
    fraVerein = Layout::frame(u"fraVerein"_s, u"Lizenziert für..."_s, this);
    new QVBoxLayout(fraVerein);
    lblVerein = addValue(u"lblVerein"_s);
    lblStrasse = addValue(u"lblStrasse"_s);
    lblPLZ = addValue(u"lblPLZ"_s);
    lblOrt = addValue(u"lblOrt"_s);
    lblTelefon = addValue(u"lblTelefon"_s);
    lblHersteller = Layout::label(u"lblHersteller"_s, u"Uferwart - die Gründer"_s, this);
    lblRechte = Layout::label(u"lblRechte"_s, u"Freie Software unter der MIT-Lizenz, ohne Gewähr."_s, this);
    cmdSysInfo = Layout::button(u"cmdSysInfo"_s, u"&System Info..."_s, this);
    cmdOK = Layout::button(u"cmdOK"_s, u"OK"_s, this);

    auto* keys = new QHBoxLayout;
    keys->addWidget(cmdSysInfo);
    keys->addStretch();
    keys->addWidget(cmdOK);
    auto* column = Layout::column(this);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{lblTitle, lblDescription, fraVerein, lblHersteller, lblRechte})
        column->addWidget(widget);
    column->addStretch();
    column->addLayout(keys);

    on(cmdSysInfo, &QPushButton::clicked, [](bool) { modSysInfo::StartSysInfo(); });
    on(cmdOK, &QPushButton::clicked, [this](bool) { cmdOK_Click(); });
}

QLabel* Info::addValue(const QString& name) {
    QLabel* value = Layout::label(name, QString(), fraVerein);
    value->setWordWrap(true);
    fraVerein->layout()->addWidget(value);
    return value;
}

void Info::Form_Load() {
    zeigeAnschrift();
    cmdOK->setFocus();
}

bool Info::Form_KeyDown(int key, Qt::KeyboardModifiers) {
    if (key != Qt::Key_Escape) return false;
    cmdOK_Click();
    return true;
}

void Info::zeigeAnschrift() {
    auto line = session().Anschrift.begin();
    for (QLabel* label : {lblVerein, lblStrasse, lblPLZ, lblOrt, lblTelefon}) label->setText(*line++);
}

void Info::cmdOK_Click() { unload<Info>(); }
