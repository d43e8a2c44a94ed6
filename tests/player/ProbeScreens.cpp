#include "ProbeScreens.h"

#include "ComboBox.h"
#include "DataTable.h"
#include "MemoBox.h"
#include "MsgBox.h"
#include "Screens.h"
#include "TextBox.h"
#include "ValueLabel.h"

#include <QAction>
#include <QCheckBox>
#include <QDateEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

QPushButton* button(const QString& name, QWidget* parent) {
    auto* made = new QPushButton(u"&Los"_qs, parent);
    made->setObjectName(name);
    parent->layout()->addWidget(made);
    return made;
}

int digitsOnly(int code) { return code >= '0' && code <= '9' ? code : 0; }

} // namespace

Probe::Probe()
    : Screen(u"Probe"_qs, u"Probe"_qs) {
    standAlone();
    new QVBoxLayout(this);
    lblEreignis = new ValueLabel(u"lblEreignis"_qs, this);
    layout()->addWidget(lblEreignis);
    buildFields();
    buildChoices();
    buildTable();
    cmdModal = button(u"cmdModal"_qs, this);
    cmdAus = button(u"cmdAus"_qs, this);
    cmdAus->setEnabled(false);
    on(cmdModal, &QPushButton::clicked, [this](bool) {
        screen<Innen>().ShowModal();
        tell(u"zurück"_qs);
    });
    connectFields();
    resize(640, 720);
}

void Probe::buildFields() {
    txtFrei = new TextBox(u"txtFrei"_qs, this);
    txtZahl = new TextBox(u"txtZahl"_qs, this);
    txtZahl->setKeyFilter(&digitsOnly);
    txtZahl->setSelectAllOnFocus(true);
    txtScheu = new TextBox(u"txtScheu"_qs, this);
    txtNotiz = new MemoBox(u"txtNotiz"_qs, this);
    for (QWidget* field : {static_cast<QWidget*>(txtFrei), static_cast<QWidget*>(txtZahl),
                           static_cast<QWidget*>(txtScheu), static_cast<QWidget*>(txtNotiz)})
        layout()->addWidget(field);
}

void Probe::buildChoices() {
    cboListe = new ComboBox(u"cboListe"_qs, ComboBox::Order::AsAdded, ComboBox::Kind::DropDownList, this);
    cboFrei = new ComboBox(u"cboFrei"_qs, ComboBox::Order::AsAdded, ComboBox::Kind::Editable, this);
    for (ComboBox* combo : {cboListe, cboFrei}) {
        for (int entry = 1; entry <= 40; ++entry) combo->AddItem(u"Eintrag %1"_qs.arg(entry));
    }
    chkJa = new QCheckBox(u"&Ja"_qs, this);
    chkJa->setObjectName(u"chkJa"_qs);
    optEins = new QRadioButton(u"Eins"_qs, this);
    optEins->setObjectName(u"optEins"_qs);
    optZwei = new QRadioButton(u"Zwei"_qs, this);
    optZwei->setObjectName(u"optZwei"_qs);
    datTag = new QDateEdit(QDate(2026, 3, 14), this);
    datTag->setObjectName(u"datTag"_qs);
    datTag->setDisplayFormat(u"dd.MM.yyyy"_qs);
    tabSeiten = new QTabWidget(this);
    tabSeiten->setObjectName(u"tabSeiten"_qs);
    tabSeiten->addTab(new QWidget, u"Vorn"_qs);
    tabSeiten->addTab(new QWidget, u"Hinten"_qs);
    for (QWidget* control :
         {static_cast<QWidget*>(cboListe), static_cast<QWidget*>(cboFrei), static_cast<QWidget*>(chkJa),
          static_cast<QWidget*>(optEins), static_cast<QWidget*>(optZwei), static_cast<QWidget*>(datTag),
          static_cast<QWidget*>(tabSeiten)})
        layout()->addWidget(control);
}

void Probe::buildTable() {
    tblZwei = new DataTable(u"tblZwei"_qs, this);
    tblZwei->setColumns({{u"Nr"_qs, 0}, {u"Gruppe"_qs, 200}});
    tblZwei->setChildColumns({{u"Nr"_qs, 60}, {u"Name"_qs, 200}}, 1);
    for (const QString& group : {u"Firmen"_qs, u"Leute"_qs})
        tblZwei->appendRow({Value(qint32(tblZwei->rowCount())), Value(group)});
    const TableHandle top = tblZwei->enterChild(1);
    tblZwei->appendRow({Value(qint32(7)), Value(u"Ärmel"_qs)});
    tblZwei->appendRow({Value(qint32(8)), Value(u"Zander"_qs)});
    tblZwei->enter(top);
    tblZwei->setMinimumHeight(160);
    layout()->addWidget(tblZwei);
}

void Probe::connectFields() {
    on(txtScheu, &TextBox::GotFocus, [this] {
        if (std::exchange(m_shy, false)) txtFrei->setFocus();
    });
    on(cboListe, &ComboBox::Click, [this] { tell(u"Wahl "_qs + cboListe->Text()); });
    on(tblZwei, &DataTable::OnGridCellDown,
       [this](int row, int column) { tell(u"down %1 %2"_qs.arg(row).arg(column)); });
    on(tblZwei, &DataTable::OnGridCellOpen, [this](int row, int column) {
        tell(u"open %1/%2 %3"_qs.arg(tblZwei->currentTable().parentRow).arg(row).arg(column));
        screen<Innen>().ShowModal();
    });
    on(tblZwei, &DataTable::OnGridCellMenu, [this] { showContextMenu(); });
}

bool Probe::Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) {
    if (key == Qt::Key_F3) tell(modifiers & Qt::ControlModifier ? u"Strg F3"_qs : u"F3"_qs);
    if (key == Qt::Key_F4) MsgBox(u"Wirklich ?\n\rJa"_qs, vbYesNo);
    return key == Qt::Key_F3 || key == Qt::Key_F4;
}

void Probe::tell(const QString& event) { lblEreignis->setCaption(event); }

void Probe::showContextMenu() {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(u"mnuKontext"_qs);
    for (const QString& name : {u"mnuErster"_qs, u"mnuZweiter"_qs, u"mnuStumm"_qs}) {
        QAction* item = menu->addAction(name);
        item->setObjectName(name);
        item->setEnabled(name != u"mnuStumm"_qs);
        on(item, &QAction::triggered, [this, name](bool) { tell(name); });
    }
    menu->popup(QCursor::pos());
}

Innen::Innen()
    : Screen(u"Innen"_qs, u"Innen"_qs) {
    new QVBoxLayout(this);
    txtInnen = new TextBox(u"txtInnen"_qs, this);
    layout()->addWidget(txtInnen);
    cmdTiefer = button(u"cmdTiefer"_qs, this);
    cmdZu = button(u"cmdZu"_qs, this);
    on(cmdTiefer, &QPushButton::clicked, [](bool) { screen<Tief>().ShowModal(); });
    on(cmdZu, &QPushButton::clicked, [this](bool) { Hide(); });
}

Tief::Tief()
    : Screen(u"Tief"_qs, u"Tief"_qs) {
    new QVBoxLayout(this);
    cmdZu = button(u"cmdZu"_qs, this);
    on(cmdZu, &QPushButton::clicked, [](bool) { unload<Tief>(); });
}
