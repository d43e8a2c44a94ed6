#include "Main.h"

#include "DataTable.h"
#include "Datenbank.h"
#include "Info.h"
#include "Katego.h"
#include "Kontakt.h"
#include "MitglList.h"
#include "Program.h"
#include "Screens.h"
#include "Session.h"
#include "SuchKont.h"
#include "Toolbar.h"
#include "modArbeit.h"
#include "modFAuswert.h"
#include "modFangbuch.h"
#include "modHandbuch.h"
#include "modKontakt.h"
#include "modMitglList.h"
#include "modNavigation.h"
#include "modStart.h"
#include "modTools.h"

#include <QApplication>
#include <QCursor>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

QPoint menuPlace() {
    const auto* grid = qobject_cast<const DataTable*>(QApplication::focusWidget());
    return grid ? grid->menuPlace() : QCursor::pos();
}

} // namespace

Main::Main()
    : Screen(u"Main"_s, u"Uferwart"_s) {
    standAlone();
    rahmen() = this;
    for (QMenu* menu : {mnuDatei, mnuTools, mnuHilf}) menuBar->addMenu(menu);
    connectMenus();
    buildPanels();
    buildAreaKeys();

    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(ButtnBar);
    middle->addWidget(stage, 1);
    QVBoxLayout* column = Layout::stack(this, {});
    column->setMenuBar(menuBar);
    column->addLayout(middle, 1);
    column->addWidget(StatusBar1);

    connect(stage, &Stage::frontChanged, this, &Main::keepMenuLetters);
    connect(stage, &Stage::frontChanged, this,
            [this](const Screen* front) { modNavigation::markiere(*ButtnBar, front); });
    on(ButtnBar, &NavigationBar::itemClicked, [this](const QString& key) { zeigeBereich(key); });
}

Main::~Main() {
    if (rahmen() == this) rahmen() = nullptr;
}

QMenu* Main::menu(QStringView name, QStringView caption) {
    auto* made = new QMenu(caption.toString(), this);
    made->setObjectName(name);
    return made;
}

QAction* Main::item(QMenu* menu, QStringView name, QStringView caption) {
    QAction* made = menu->addAction(caption.toString());
    made->setObjectName(name);
    return made;
}

void Main::connectMenus() {
    on(mnuBeenden, &QAction::triggered, [this](bool) { mnuBeenden_Click(); });
    on(mnuKomprimiere, &QAction::triggered, [](bool) { modTools::KomprimiereDatenbank(); });
    on(mnuRepariere, &QAction::triggered, [](bool) { modTools::RepariereDatenbank(); });
    on(mnuMitglInfo, &QAction::triggered, [](bool) { modMitglList::mnuMitglInfo_Click(); });
    on(mnuFangInfo, &QAction::triggered, [](bool) { modFAuswert::mnuFangInfo_Click(); });
    // The key itself is seen by Program, before any control and above any box.
    on(mnuHandbuch, &QAction::triggered,
       [](bool) { modHandbuch::ZeigeHandbuch(QApplication::focusWidget()); });
    on(mnuInfo, &QAction::triggered, [this](bool) { the<Info>().ShowAbove(this); });
    on(mnuArbContr, &QAction::triggered, [](bool) { modArbeit::mnuArbContr_Click(); });
}

void Main::buildPanels() {
    StatusBar1->addClock(u"dd.MM.yyyy"_s, u"Datum"_s);
    StatusBar1->addClock(u"hh:mm"_s, u"Zeit"_s);
    StatusBar1->addPanel(u"Benutzer:"_s, u"Benutzer:"_s);
    StatusBar1->addPanel({}, u"Angemeldeter Benutzer"_s);
    StatusBar1->addPanel({}, {});
    StatusBar1->addPanel({}, u"Statusinformationen..."_s, true);
    StatusBar1->addPanel(u"Fangjahr:"_s, u"Fangjahr:"_s);
    StatusBar1->addPanel({}, u"Akt. Fangjahr..."_s);
}

/// Ctrl with a digit shows the area that stands at this place of the bar.
void Main::buildAreaKeys() {
    for (int place = 1; place <= 9; ++place) {
        auto* key = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + place)), this);
        on(key, &QShortcut::activated, [this, place] {
            if (const BarItem* item = ButtnBar->items().value(place - 1)) zeigeBereich(item->key());
        });
    }
}

/// Alt with a letter of the menu would open the menu every other time only.
void Main::keepMenuLetters(const Screen* front) {
    QVector<QKeySequence> letters;
    for (const QAction* menu : menuBar->actions()) letters.append(QKeySequence::mnemonic(menu->text()));
    if (auto* toolbar = front ? front->findChild<Toolbar*>() : nullptr) toolbar->yieldLetters(letters);
}

void Main::Form_Load() { modStart::StarteUferwart(); }

void Main::Form_Unload() { Program::current().finish(); }

void Main::Form_QueryUnload() { unload<Main>(); }

void Main::zeigeBereich(const QString& key) { modNavigation::zeigeBereich(key); }

void Main::zeigeMitgliederliste() { the<MitglList>().Show(); }

void Main::beendeStill() { Program::current().finishUnseen(); }

void Main::mnuBeenden_Click() {
    SchliesseDatenbank();
    unload<Kontakt>();
    unload<Katego>();
    unload<SuchKont>();
    unload<Main>();
}

void Main::mnuInfo_Click() { the<Info>().ShowAbove(this); }

void Main::loadKontMenu_Mitgl() {
    mnuMitglInfo->setEnabled(modKontakt::KontaktZugriff_Erlaubt());
    mnuArbContr->setEnabled(modArbeit::ArbeitsZugriff_Erlaubt());
    mnuKontMenu_Mitgl->popup(menuPlace());
}

void Main::loadKontMenu_FAusw() {
    mnuFangInfo->setEnabled(modFangbuch::FangbuchZugriff_Erlaubt());
    mnuKontMenu_FAusw->popup(menuPlace());
}
