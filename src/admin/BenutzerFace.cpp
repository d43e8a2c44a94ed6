#include "Benutzer.h"
#include "ComboBox.h"
#include "DataTable.h"
#include "Face.h"
#include "Gitter.h"
#include "Heading.h"
#include "Rechte.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modBenutzer.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QTabWidget>

namespace {

TextBox* nameBox(const QString& name, QWidget* parent) {
    constexpr int limit = 50;
    auto* box = new TextBox(name, parent);
    box->setMaxLength(limit);
    return box;
}

/// Takes the room of two fields, as a name of fifty characters needs it.
void addWideField(QGridLayout* form, int row, QLabel* label, QWidget* field) {
    Face::addField(form, row, label, field);
    form->addWidget(field, row, 1, 1, -1);
}

/// The form above, the grid below with what room is left.
QWidget* page(QGroupBox* entry, QGroupBox* list) {
    auto* made = new QWidget;
    auto* column = new QVBoxLayout(made);
    column->setContentsMargins(Face::gap, Face::gap, Face::gap, Face::gap);
    column->setSpacing(Face::gap);
    column->addWidget(entry);
    column->addWidget(list, 1);
    entry->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    return made;
}

void layOutList(QGroupBox* frame, DataTable* grid, QLabel* caption, ValueLabel* count) {
    grid->setAccessibleName(frame->title());
    count->setAccessibleName(u"Anzahl"_qs);
    count->setNumeric();
    auto* foot = new QHBoxLayout;
    foot->addStretch();
    foot->addWidget(caption);
    foot->addWidget(count);
    auto* column = new QVBoxLayout(frame);
    column->addWidget(grid, 1);
    column->addLayout(foot);
}

} // namespace

Benutzer::Benutzer()
    : Screen(u"Benutzer"_qs, u"Benutzerverwaltung"_qs) {
    Ueberschrift = new Heading(u"BENUTZERVERWALTUNG"_qs, this);
    buildToolbar();
    tabBV = new QTabWidget(this);
    tabBV->setObjectName(u"tabBV"_qs);
    tabBV->addTab(buildUserPage(), u"Benutzer hinzuf. oder edit."_qs);
    tabBV->addTab(buildGroupPage(), u"Zugriffsverwaltung"_qs);
    Face::column(this, Ueberschrift, Toolbar1)->addWidget(tabBV, 1);
    connectEvents();
}

void Benutzer::buildToolbar() {
    // The page in front decides at the moment of the press.
    const auto erfassung = [this] {
        return tabBV->currentIndex() == userPage ? modBenutzer::benutzerErfassung()
                                                 : modBenutzer::gruppenErfassung();
    };
    Toolbar1 = new Toolbar(this);
    Face::addRecordKeys(
        Toolbar1, [=, this] { erfassung().sichern(*this); }, [=, this] { erfassung().entfernen(*this); },
        &modBenutzer::LeereBenutzerEingabe);
}

QWidget* Benutzer::buildUserPage() {
    buildUserEntry();
    buildUserGrid();
    return page(Frame2, Frame3);
}

void Benutzer::buildUserEntry() {
    Frame2 = Face::frame(u"Frame2"_qs, u"Benutzer hinzuf. oder editieren..."_qs, nullptr);
    lblBI = Face::label(u"lblBI"_qs, u"Benutzer-Nr:"_qs, Frame2);
    lblBNr = new ValueLabel(u"lblBNr"_qs, Frame2);
    lblB = Face::label(u"lblB"_qs, u"Benutzername:"_qs, Frame2);
    txtBenutzer = nameBox(u"txtBenutzer"_qs, Frame2);
    lblP = Face::label(u"lblP"_qs, u"Passwort:"_qs, Frame2);
    txtPassw = nameBox(u"txtPassw"_qs, Frame2);
    lblBest = Face::label(u"lblBest"_qs, u"...bestätigen:"_qs, Frame2);
    txtPasswBest = nameBox(u"txtPasswBest"_qs, Frame2);
    for (TextBox* box : {txtPassw, txtPasswBest}) box->setEchoMode(QLineEdit::Password);
    lblBG = Face::label(u"lblBG"_qs, u"Benutzergruppe:"_qs, Frame2);
    cboBG = new ComboBox(u"cboBG"_qs, ComboBox::Order::AsAdded, ComboBox::Kind::Editable, Frame2);
    cboBG->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    constexpr int secondColumn = 3;
    auto* form = new QGridLayout(Frame2);
    form->setHorizontalSpacing(Face::gap);
    addWideField(form, 0, lblBI, lblBNr);
    addWideField(form, 1, lblB, txtBenutzer);
    Face::addField(form, 2, lblP, txtPassw);
    Face::addField(form, 2, lblBest, txtPasswBest, secondColumn);
    addWideField(form, 3, lblBG, cboBG);
    txtPasswBest->setAccessibleName(u"Passwort bestätigen"_qs);
    form->setColumnMinimumWidth(secondColumn - 1, Face::gap);
    form->setColumnStretch(1, 1);
    form->setColumnStretch(secondColumn + 1, 1);
}

void Benutzer::buildUserGrid() {
    Frame3 = Face::frame(u"Frame3"_qs, u"Benutzerübersicht..."_qs, nullptr);
    tblBenutzer = new DataTable(u"tblBenutzer"_qs, Frame3);
    tblBenutzer->setColumns({{u"Benutzer-Nr."_qs, 96, true},
                             {u"Benutzername"_qs, 200},
                             {u"Passwort"_qs, 200},
                             {u"Ben.-Gruppe"_qs, 200}});
    lblBAnz = Face::label(u"lblBAnz"_qs, u"Anzahl:"_qs, Frame3);
    lblBAnzahl = new ValueLabel(u"lblBAnzahl"_qs, Frame3);
    layOutList(Frame3, tblBenutzer, lblBAnz, lblBAnzahl);
}

QWidget* Benutzer::buildGroupPage() {
    buildGroupEntry();
    buildGroupGrid();
    return page(Frame4, Frame1);
}

void Benutzer::buildGroupEntry() {
    Frame4 = Face::frame(u"Frame4"_qs, u"Gruppe hinzuf. od. edit."_qs, nullptr);
    lblGruppN = Face::label(u"lblGruppN"_qs, u"Gruppen-Nr:"_qs, Frame4);
    lblGNr = new ValueLabel(u"lblGNr"_qs, Frame4);
    lblBGru = Face::label(u"lblBGru"_qs, u"Name der Gruppe:"_qs, Frame4);
    txtGruppe = nameBox(u"txtGruppe"_qs, Frame4);
    lblZA = Face::label(u"lblZA"_qs, u"Hat Zugriff auf:"_qs, Frame4);

    auto* form = new QGridLayout(Frame4);
    form->setHorizontalSpacing(Face::gap);
    Face::addField(form, 0, lblGruppN, lblGNr);
    Face::addField(form, 1, lblBGru, txtGruppe);
    form->addWidget(lblZA, 2, 0, Qt::AlignTop);
    addRights(form, 2);
    // On one line with the first row of boxes.
    lblZA->setMinimumHeight(Zugriffe.first()->sizeHint().height());
    form->setColumnStretch(1, 1);
}

void Benutzer::addRights(QGridLayout* form, int row) {
    constexpr int perRow = 5;
    auto* boxes = new QGridLayout;
    boxes->setHorizontalSpacing(2 * Face::gap);
    for (const Recht& recht : rechte()) {
        const int place = int(Zugriffe.size());
        Zugriffe.append(Face::checkBox(recht.kasten, recht.aufschrift, Frame4));
        boxes->addWidget(Zugriffe.last(), place / perRow, place % perRow);
    }
    boxes->setColumnStretch(perRow, 1);
    form->addLayout(boxes, row, 1);
}

void Benutzer::buildGroupGrid() {
    Frame1 = Face::frame(u"Frame1"_qs, u"Zugriff"_qs, nullptr);
    tblZugriff = new DataTable(u"tblZugriff"_qs, Frame1);
    QVector<GridColumn> columns = {{.head = u"Gruppen-Nr."_qs, .width = 60, .numeric = true, .firm = true},
                                   {.head = u"Gruppe \\ Forms"_qs, .width = 150, .minimumWidth = 108}};
    columns[0].headLines = u"Gruppen-\nNr."_qs;
    for (const Recht& recht : rechte())
        columns.append({.head = recht.kopf,
                        .width = recht.breite,
                        .tick = true,
                        .fixed = true,
                        .headLines = recht.kopfZeilen});
    tblZugriff->setColumns(columns);
    Label1 = Face::label(u"Label1"_qs, u"Anzahl:"_qs, Frame1);
    lblGAnzahl = new ValueLabel(u"lblGAnzahl"_qs, Frame1);
    layOutList(Frame1, tblZugriff, Label1, lblGAnzahl);
}

void Benutzer::connectEvents() {
    on(tabBV, &QTabWidget::currentChanged, [this](int page) { tabBV_Click(page); });
    on(tblBenutzer, &DataTable::OnGridCellOpen, [this](int row, int) { tblBenutzer_OnGridCellOpen(row); });
    on(tblZugriff, &DataTable::OnGridCellOpen, [this](int row, int) { tblZugriff_OnGridCellOpen(row); });
    modRun::connectGridFocus(tblBenutzer);
    on(tblZugriff, &DataTable::OnGridGotFocus,
       [this] { modRun::SetzeGridFarben(tblZugriff->selectionStyle()); });
    on(tblZugriff, &DataTable::OnGridLostFocus, [this] { tblZugriff_OnGridLostFocus(); });
}
