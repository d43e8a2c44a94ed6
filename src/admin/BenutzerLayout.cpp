#include "Benutzer.h"
#include "ComboBox.h"
#include "DataTable.h"
#include "Gitter.h"
#include "Heading.h"
#include "Layout.h"
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

using namespace Qt::StringLiterals;

namespace {

TextBox* nameBox(const QString& name, QWidget* parent) {
    constexpr int limit = 50;
    auto* box = new TextBox(name, parent);
    box->setMaxLength(limit);
    return box;
}

/// Adds a field across all columns, wide enough for a name of fifty characters.
void addWideField(QGridLayout* screen, int row, QLabel* label, QWidget* field) {
    Layout::addField(screen, row, label, field);
    screen->addWidget(field, row, 1, 1, -1);
}

/// Makes a page: the entry fields at the top, the grid in the remaining space.
QWidget* page(QGroupBox* entry, QGroupBox* list) {
    auto* made = new QWidget;
    auto* column = new QVBoxLayout(made);
    column->setContentsMargins(Layout::gap, Layout::gap, Layout::gap, Layout::gap);
    column->setSpacing(Layout::gap);
    column->addWidget(entry);
    column->addWidget(list, 1);
    entry->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    return made;
}

void layOutList(QGroupBox* frame, DataTable* grid, QLabel* caption, ValueLabel* count) {
    grid->setAccessibleName(frame->title());
    count->setAccessibleName(u"Anzahl"_s);
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
    : Screen(u"Benutzer"_s, u"Benutzerverwaltung"_s) {
    Ueberschrift = new Heading(u"BENUTZERVERWALTUNG"_s, this);
    buildToolbar();
    tabBV = new QTabWidget(this);
    tabBV->setObjectName(u"tabBV"_s);
    tabBV->addTab(buildUserPage(), u"Benutzer hinzuf. oder edit."_s);
    tabBV->addTab(buildGroupPage(), u"Zugriffsverwaltung"_s);
    Layout::column(this, Ueberschrift, Toolbar1)->addWidget(tabBV, 1);
    connectEvents();
}

void Benutzer::buildToolbar() {
    // Evaluated at each press, since the page in front changes.
    const auto erfassung = [this] {
        return tabBV->currentIndex() == userPage ? modBenutzer::benutzerErfassung()
                                                 : modBenutzer::gruppenErfassung();
    };
    Toolbar1 = Layout::recordToolbar(
        this, [=, this] { erfassung().sichern(*this); }, [=, this] { erfassung().entfernen(*this); },
        &modBenutzer::LeereBenutzerEingabe);
}

QWidget* Benutzer::buildUserPage() {
    buildUserEntry();
    buildUserGrid();
    return page(Frame2, Frame3);
}

void Benutzer::buildUserEntry() {
    Frame2 = Layout::frame(u"Frame2"_s, u"Benutzer hinzuf. oder editieren..."_s, nullptr);
    lblBI = Layout::label(u"lblBI"_s, u"Benutzer-Nr:"_s, Frame2);
    lblBNr = new ValueLabel(u"lblBNr"_s, Frame2);
    lblB = Layout::label(u"lblB"_s, u"Benutzername:"_s, Frame2);
    txtBenutzer = nameBox(u"txtBenutzer"_s, Frame2);
    lblP = Layout::label(u"lblP"_s, u"Passwort:"_s, Frame2);
    txtPassw = nameBox(u"txtPassw"_s, Frame2);
    lblBest = Layout::label(u"lblBest"_s, u"...bestätigen:"_s, Frame2);
    txtPasswBest = nameBox(u"txtPasswBest"_s, Frame2);
    for (TextBox* box : {txtPassw, txtPasswBest}) box->setEchoMode(QLineEdit::Password);
    lblBG = Layout::label(u"lblBG"_s, u"Benutzergruppe:"_s, Frame2);
    cboBG = new ComboBox(u"cboBG"_s, Frame2, ComboBox::Kind::Editable);
    cboBG->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    constexpr int secondColumn = 3;
    auto* screen = new QGridLayout(Frame2);
    screen->setHorizontalSpacing(Layout::gap);
    addWideField(screen, 0, lblBI, lblBNr);
    addWideField(screen, 1, lblB, txtBenutzer);
    Layout::addField(screen, 2, lblP, txtPassw);
    Layout::addField(screen, 2, lblBest, txtPasswBest, secondColumn);
    addWideField(screen, 3, lblBG, cboBG);
    txtPasswBest->setAccessibleName(u"Passwort bestätigen"_s);
    screen->setColumnMinimumWidth(secondColumn - 1, Layout::gap);
    screen->setColumnStretch(1, 1);
    screen->setColumnStretch(secondColumn + 1, 1);
}

void Benutzer::buildUserGrid() {
    Frame3 = Layout::frame(u"Frame3"_s, u"Benutzerübersicht..."_s, nullptr);
    tblBenutzer = new DataTable(u"tblBenutzer"_s, Frame3);
    tblBenutzer->setColumns({{u"Benutzer-Nr."_s, 96, true},
                             {u"Benutzername"_s, 200},
                             {u"Passwort"_s, 200},
                             {u"Ben.-Gruppe"_s, 200}});
    lblBAnz = Layout::label(u"lblBAnz"_s, u"Anzahl:"_s, Frame3);
    lblBAnzahl = new ValueLabel(u"lblBAnzahl"_s, Frame3);
    layOutList(Frame3, tblBenutzer, lblBAnz, lblBAnzahl);
}

QWidget* Benutzer::buildGroupPage() {
    buildGroupEntry();
    buildGroupGrid();
    return page(Frame4, Frame1);
}

void Benutzer::buildGroupEntry() {
    Frame4 = Layout::frame(u"Frame4"_s, u"Gruppe hinzuf. od. edit."_s, nullptr);
    lblGruppN = Layout::label(u"lblGruppN"_s, u"Gruppen-Nr:"_s, Frame4);
    lblGNr = new ValueLabel(u"lblGNr"_s, Frame4);
    lblBGru = Layout::label(u"lblBGru"_s, u"Name der Gruppe:"_s, Frame4);
    txtGruppe = nameBox(u"txtGruppe"_s, Frame4);
    lblZA = Layout::label(u"lblZA"_s, u"Hat Zugriff auf:"_s, Frame4);

    auto* screen = new QGridLayout(Frame4);
    screen->setHorizontalSpacing(Layout::gap);
    Layout::addField(screen, 0, lblGruppN, lblGNr);
    Layout::addField(screen, 1, lblBGru, txtGruppe);
    screen->addWidget(lblZA, 2, 0, Qt::AlignTop);
    addRights(screen, 2);
    // Puts the label on one line with the first row of check boxes.
    lblZA->setMinimumHeight(Zugriffe.first()->sizeHint().height());
    screen->setColumnStretch(1, 1);
}

void Benutzer::addRights(QGridLayout* screen, int row) {
    constexpr int perRow = 5;
    auto* boxes = new QGridLayout;
    boxes->setHorizontalSpacing(2 * Layout::gap);
    for (const Recht& recht : rechte()) {
        const int place = int(Zugriffe.size());
        Zugriffe.append(Layout::checkBox(recht.kasten, recht.aufschrift, Frame4));
        boxes->addWidget(Zugriffe.last(), place / perRow, place % perRow);
    }
    boxes->setColumnStretch(perRow, 1);
    screen->addLayout(boxes, row, 1);
}

void Benutzer::buildGroupGrid() {
    Frame1 = Layout::frame(u"Frame1"_s, u"Zugriff"_s, nullptr);
    tblZugriff = new DataTable(u"tblZugriff"_s, Frame1);
    QVector<GridColumn> columns = {{.head = u"Gruppen-Nr."_s, .width = 60, .numeric = true, .firm = true},
                                   {.head = u"Gruppe \\ Forms"_s, .width = 150, .minimumWidth = 108}};
    columns[0].headLines = u"Gruppen-\nNr."_s;
    for (const Recht& recht : rechte())
        columns.append({.head = recht.kopf,
                        .width = recht.breite,
                        .tick = true,
                        .fixed = true,
                        .headLines = recht.kopfZeilen});
    tblZugriff->setColumns(columns);
    Label1 = Layout::label(u"Label1"_s, u"Anzahl:"_s, Frame1);
    lblGAnzahl = new ValueLabel(u"lblGAnzahl"_s, Frame1);
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
