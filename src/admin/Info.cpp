#include "Info.h"

#include "Face.h"
#include "Screens.h"
#include "Session.h"
#include "modSysInfo.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

Info::Info()
    : Screen(u"Info"_qs, u"Info"_qs) {
    // Who looks something up here in the middle of an entry finds the entry as it was.
    standAlone();
    lblTitle = Face::label(u"lblTitle"_qs, u"Uferwart Version 2.0"_qs, this);
    QFont titleFont(u"Comic Sans MS"_qs);
    titleFont.setPointSize(16);
    lblTitle->setFont(titleFont);
    lblDescription = Face::label(u"lblDescription"_qs,
                                 u"Software für Angelsportvereine.\n"
                                 u"- Professionelle Fangaufnahme\n"
                                 u"- Fangauswertung mit Datenexport zu EXCEL\n"
                                 u"- Fanglistendruck\n"
                                 u"- Verwaltungsmöglichkeiten v. Mitgliedern u. Kontakten\n"
                                 u"- Softwareunterstützes Verwalten der Arbeitsstunden u.s.w"_qs,
                                 this);
    fraVerein = Face::frame(u"fraVerein"_qs, u"Lizenziert für..."_qs, this);
    new QVBoxLayout(fraVerein);
    lblVerein = addValue(u"lblVerein"_qs);
    lblStrasse = addValue(u"lblStrasse"_qs);
    lblPLZ = addValue(u"lblPLZ"_qs);
    lblOrt = addValue(u"lblOrt"_qs);
    lblTelefon = addValue(u"lblTelefon"_qs);
    lblHersteller = Face::label(u"lblHersteller"_qs, u"Uferwart - die Gründer"_qs, this);
    lblRechte = Face::label(u"lblRechte"_qs, u"Freie Software unter der MIT-Lizenz, ohne Gewähr."_qs, this);
    cmdSysInfo = Face::button(u"cmdSysInfo"_qs, u"&System Info..."_qs, this);
    cmdOK = Face::button(u"cmdOK"_qs, u"OK"_qs, this);

    auto* keys = new QHBoxLayout;
    keys->addWidget(cmdSysInfo);
    keys->addStretch();
    keys->addWidget(cmdOK);
    auto* column = Face::column(this);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{lblTitle, lblDescription, fraVerein, lblHersteller, lblRechte})
        column->addWidget(widget);
    column->addStretch();
    column->addLayout(keys);

    on(cmdSysInfo, &QPushButton::clicked, [](bool) { modSysInfo::StartSysInfo(); });
    on(cmdOK, &QPushButton::clicked, [this](bool) { cmdOK_Click(); });
}

QLabel* Info::addValue(const QString& name) {
    QLabel* value = Face::label(name, QString(), fraVerein);
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
