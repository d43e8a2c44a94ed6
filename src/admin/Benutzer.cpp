#include "Benutzer.h"

#include "Gitter.h"
#include "Rechte.h"
#include "modBenutzer.h"

#include <utility>

using namespace Qt::StringLiterals;

Benutzer::Benutzer()
    : Screen(u"Benutzer"_s, u"Benutzerverwaltung"_s) {
    tabBV->setObjectName(u"tabBV"_s);
    layOutUser();
    layOutGroup();
    addPage(u"Benutzer hinzuf. oder edit."_s, Frame2, tblBenutzer, lblBAnz, lblBAnzahl);
    addPage(u"Zugriffsverwaltung"_s, Frame4, tblZugriff, Label1, lblGAnzahl);
    Layout::column(this, Ueberschrift, Toolbar1)->addWidget(tabBV, 1);

    on(tabBV, &QTabWidget::currentChanged, [this](int page) { tabBV_Click(page); });
    on(tblBenutzer, &DataTable::OnGridCellOpen, [](int row, int) { modBenutzer::LadeBenutzerVorgang(row); });
    on(tblZugriff, &DataTable::OnGridCellOpen, [](int row, int) { modBenutzer::LadeGruppenVorgang(row); });
    modRun::connectGridFocus(tblBenutzer);
    // Takes the row count of the users' grid: with more groups than users, a group in a row past that count
    // stays marked.
    modRun::connectGridFocus(tblZugriff, tblBenutzer);
}

Toolbar* Benutzer::buildToolbar() {
    // Evaluated at each press, since the page in front changes.
    const auto erfassung = [this] {
        return tabBV->currentIndex() == userPage ? modBenutzer::benutzerErfassung()
                                                 : modBenutzer::gruppenErfassung();
    };
    return Layout::recordToolbar(
        this, [=, this] { erfassung().sichern(*this); }, [=, this] { erfassung().entfernen(*this); },
        &modBenutzer::LeereBenutzerEingabe);
}

QVector<QCheckBox*> Benutzer::buildRights() {
    QVector<QCheckBox*> boxes;
    for (const Recht& recht : rechte) boxes.append(Layout::checkBox(recht.kasten, recht.aufschrift, Frame4));
    return boxes;
}

void Benutzer::layOutUser() {
    for (TextBox* box : {txtPassw, txtPasswBest}) box->setEchoMode(QLineEdit::Password);
    cboBG->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    constexpr int secondColumn = 3;
    QGridLayout* screen = Layout::form(Frame2);
    Layout::addFields(screen, {{lblBI, lblBNr}, {lblB, txtBenutzer}, {lblP, txtPassw}, {lblBG, cboBG}});
    Layout::addField(screen, 2, lblBest, txtPasswBest, secondColumn);
    // The other fields are wide enough for a name of fifty characters.
    screen->addWidget(lblBNr, 0, 1, 1, -1);
    screen->addWidget(txtBenutzer, 1, 1, 1, -1);
    screen->addWidget(cboBG, 3, 1, 1, -1);
    txtPasswBest->setAccessibleName(u"Passwort bestätigen"_s);
    screen->setColumnMinimumWidth(secondColumn - 1, Layout::gap);
    screen->setColumnStretch(1, 1);
    screen->setColumnStretch(secondColumn + 1, 1);
    tblBenutzer->setColumns({{u"Benutzer-Nr."_s, 96, true},
                             {u"Benutzername"_s, 200},
                             {u"Passwort"_s, 200},
                             {u"Ben.-Gruppe"_s, 200}});
}

void Benutzer::layOutGroup() {
    constexpr int perRow = 5;
    auto* boxes = new QGridLayout;
    boxes->setHorizontalSpacing(2 * Layout::gap);
    for (int place = 0; place < Zugriffe.size(); ++place)
        boxes->addWidget(Zugriffe[place], place / perRow, place % perRow);
    boxes->setColumnStretch(perRow, 1);
    QGridLayout* screen = Layout::form(Frame4);
    Layout::addFields(screen, {{lblGruppN, lblGNr}, {lblBGru, txtGruppe}});
    screen->addWidget(lblZA, 2, 0, Qt::AlignTop);
    screen->addLayout(boxes, 2, 1);
    // Puts the label on one line with the first row of check boxes.
    lblZA->setMinimumHeight(Zugriffe.first()->sizeHint().height());
    screen->setColumnStretch(1, 1);

    QVector<GridColumn> columns = {{.head = u"Gruppen-Nr."_s,
                                    .width = 60,
                                    .numeric = true,
                                    .firm = true,
                                    .headLines = u"Gruppen-\nNr."_s},
                                   {.head = u"Gruppe \\ Forms"_s, .width = 150, .minimumWidth = 108}};
    for (const Recht& recht : rechte)
        columns.append({.head = recht.kopf.toString(),
                        .width = recht.breite,
                        .tick = true,
                        .fixed = true,
                        .headLines = recht.kopfZeilen.toString()});
    tblZugriff->setColumns(columns);
}

void Benutzer::addPage(const QString& caption, QGroupBox* entry, DataTable* grid, QLabel* countLabel,
                       ValueLabel* count) {
    auto* list = static_cast<QGroupBox*>(grid->parentWidget());
    grid->setAccessibleName(list->title());
    auto* foot = new QHBoxLayout;
    foot->addStretch();
    Layout::addCount(foot, countLabel, count);
    count->setAccessibleName(u"Anzahl"_s);
    auto* inner = new QVBoxLayout(list);
    inner->addWidget(grid, 1);
    inner->addLayout(foot);
    entry->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    QVBoxLayout* column = Layout::page(tabBV, caption);
    column->addWidget(entry);
    column->addWidget(list, 1);
}

void Benutzer::Form_Activate() { modBenutzer::LadeGruppenCombo(cboBG); }

void Benutzer::Form_Paint() {
    lblBAnzahl->setNum(tblBenutzer->rowCount());
    lblGAnzahl->setNum(tblZugriff->rowCount());
}

void Benutzer::Form_Deactivate() { modBenutzer::LeereBenutzerAnzeige(); }

void Benutzer::tabBV_Click(int page) {
    // Groups may have been added, deleted or renamed on the group page.
    if (std::exchange(m_page, page) == groupPage) modBenutzer::LadeGruppenCombo(cboBG);
    // Form_Paint sets the counts of both pages.
    update();
}
