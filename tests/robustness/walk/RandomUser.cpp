#include "RandomUser.h"

#include "Commands.h"
#include "Controls.h"
#include "DataTable.h"
#include "DateBox.h"
#include "GridCells.h"
#include "MenuItems.h"
#include "NavigationBar.h"
#include "PlayedProgram.h"
#include "RandomTexts.h"
#include "Screens.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

/// The most answers that are set in advance. A further question in a row is answered No.
constexpr int answersAhead = 2;

QString quoted(QString text) {
    text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
    text.replace(u'\r', u"\\r"_s).replace(u'\n', u"\\n"_s);
    return u'"' + text + u'"';
}

template<typename... Kinds>
bool isOneOf(const QWidget* widget) {
    return (qobject_cast<const Kinds*>(widget) || ...);
}

bool takesText(const QWidget* widget) {
    const auto* line = qobject_cast<const QLineEdit*>(widget);
    return (line && !line->isReadOnly()) || isOneOf<QPlainTextEdit, DateBox>(widget);
}

QVector<QWidget*> usableControls(const Screen& screen) {
    QVector<QWidget*> usable;
    for (QWidget* control : screen.findChildren<QWidget*>()) {
        const QString name = control->objectName();
        // cmdSysInfo would start another program.
        const bool named = !name.isEmpty() && !name.startsWith(u"qt_"_s) && name != u"cmdSysInfo"_s;
        if (named && control->isVisible() && control->isEnabled() && Controls::screenOf(control) == &screen &&
            (takesText(control) || isOneOf<QComboBox, QAbstractButton, QTabWidget, DataTable>(control)))
            usable.append(control);
    }
    return usable;
}

} // namespace

Screen* RandomUser::frontScreen(PlayedProgram& program) {
    const QString modal = findCommand(u"modal"_s)->run(program, {}).value(0);
    if (Screen* screen = Screens::byName(modal)) return screen;
    return Screens::byName(findCommand(u"front"_s)->run(program, {}).value(0));
}

RandomUser::RandomUser(PlayedProgram& program, quint32 seed)
    : m_program(program)
    , m_dice(seed) {}

QString RandomUser::next() {
    if (!m_program.isRunning()) return startAgain();
    if (m_program.boxes().unusedAnswers() < answersAhead)
        return m_dice.chance(65) ? u"answer yes"_s : u"answer no"_s;
    Screen* front = frontScreen(m_program);
    if (!m_plan.isEmpty() && front == m_planned) return m_plan.takeFirst();
    m_plan.clear();
    if (const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) return chooseFrom(*menu);
    if (front->objectName() == u"Login"_s && m_dice.chance(85)) return logIn();
    return roam(*front);
}

QString RandomUser::roam(Screen& front) {
    const int throwOf = m_dice.below(100);
    const int dialogs = front.objectName() == u"Vorschau"_s ? 30 : 2;
    if (throwOf < dialogs && m_program.dialogs().unused() == 0)
        return m_dice.chance(60) ? u"dialog pdf zufall.pdf"_s : u"dialog cancel"_s;
    if (throwOf < 7) return leave(front);
    if (throwOf < 17) return pressKey(front);
    if (throwOf < 32) planToFillIn(front);
    if (!m_plan.isEmpty()) return m_plan.takeFirst();
    return actOnAny(front);
}

/// Leaves the screen: by the window's frame, the navigation bar or a menu.
QString RandomUser::leave(Screen& front) {
    const Screen* frame = Screens::byName(u"Main"_s);
    const bool frameIsFree = frame && frame->isVisible() && !front.isModalNow();
    if (!frameIsFree || (front.objectName() == u"Vorschau"_s && m_dice.chance(60)) || m_dice.chance(3))
        return u"close "_s + front.objectName();
    constexpr const char16_t* menus[] = {u"mnuBeenden", u"mnuKomprimiere", u"mnuRepariere", u"mnuInfo"};
    if (m_dice.chance(1)) return u"close Main"_s;
    if (m_dice.chance(8)) return u"menu "_s + QString::fromUtf16(m_dice.pick(menus));
    const QList<BarItem*> items = frame->findChildren<BarItem*>();
    if (items.isEmpty()) return u"menu mnuInfo"_s;
    return u"nav "_s + items[m_dice.below(int(items.size()))]->key();
}

QString RandomUser::pressKey(const Screen& front) {
    constexpr const char16_t* keys[] = {
        u"Tab",      u"Shift+Tab", u"Return", u"Escape", u"F2",    u"F3",        u"F8",
        u"F1",       u"F10",       u"Up",     u"Down",   u"Left",  u"Right",     u"PageUp",
        u"PageDown", u"Home",      u"End",    u"Delete", u"Space", u"Backspace", u"Menu",
        u"Plus",     u"Minus",     u"Alt+S",  u"Alt+L",  u"Alt+A", u"Alt+D",     u"Ctrl+A",
        u"Ctrl+C",   u"Ctrl+V",    u"Ctrl+X", u"Ctrl+Z", u"Enter", u"Ctrl+End"};
    return u"key "_s + front.objectName() + u' ' + QString::fromUtf16(m_dice.pick(keys));
}

QString RandomUser::chooseFrom(const QMenu& menu) {
    QStringList names;
    for (const QAction* item : menu.actions())
        if (item->isVisible() && item->isEnabled() && MenuItems::isItem(item->objectName()))
            names.append(item->objectName());
    if (names.isEmpty() || m_dice.chance(20)) return u"answer yes"_s;
    return u"menu "_s + names[m_dice.below(int(names.size()))];
}

QString RandomUser::actOnAny(Screen& front) {
    const QVector<QWidget*> controls = usableControls(front);
    if (controls.isEmpty()) return leave(front);
    return actOn(controls[m_dice.below(int(controls.size()))]);
}

/// Plans to fill in much, little or nothing of a screen, sometimes after opening a row. Then clicks the
/// button that saves, deletes or does something else, and looks at the result of a search.
void RandomUser::planToFillIn(Screen& front) {
    constexpr int diligence[] = {97, 97, 25, 0};
    const int often = m_dice.pick(diligence);
    QStringList keys;
    QStringList grids;
    for (QWidget* control : usableControls(front)) {
        if (auto* grid = qobject_cast<DataTable*>(control))
            grids.append(onGrid(*grid, Controls::nameOf(control)));
        else if (qobject_cast<QAbstractButton*>(control) && !isOneOf<QCheckBox, QRadioButton>(control))
            keys.append(u"click "_s + Controls::nameOf(control));
        else if (!qobject_cast<QTabWidget*>(control) &&
                 m_dice.chance(isOneOf<QCheckBox>(control) ? often / 4 : often))
            m_plan.append(fillIn(control));
    }
    if (!grids.isEmpty() && (m_plan.isEmpty() || m_dice.chance(50))) m_plan.prepend(grids.first());
    if (!keys.isEmpty())
        m_plan.append(m_dice.chance(70) ? keys.value(often == 0 ? 1 : 0)
                                        : keys[m_dice.below(int(keys.size()))]);
    if (!grids.isEmpty() && m_dice.chance(50))
        m_plan.append(u"open %1 %2 1"_s.arg(grids.first().section(u' ', 1, 1)).arg(m_dice.below(3)));
    m_plan.removeAll(QString());
    m_planned = &front;
}

QString RandomUser::actOn(QWidget* control) {
    const QString name = Controls::nameOf(control);
    if (auto* grid = qobject_cast<DataTable*>(control)) return onGrid(*grid, name);
    if (const auto* pages = qobject_cast<QTabWidget*>(control))
        return u"tab %1 %2"_s.arg(name).arg(m_dice.below(pages->count()));
    const auto* combo = qobject_cast<QComboBox*>(control);
    const bool typed = takesText(control) || (combo && combo->isEditable() && m_dice.chance(30));
    if (!typed) return fillIn(control);
    constexpr const char16_t* ways[] = {u"type", u"set", u"paste"};
    return QString::fromUtf16(m_dice.pick(ways)) + u' ' + name + u' ' + quoted(RandomTexts::any(m_dice));
}

QString RandomUser::fillIn(QWidget* control) {
    const QString name = Controls::nameOf(control);
    if (takesText(control)) return u"set "_s + name + u' ' + quoted(RandomTexts::fitting(m_dice, name));
    if (const auto* combo = qobject_cast<QComboBox*>(control)) {
        if (combo->count() == 0) return u"click "_s + name;
        return u"choose "_s + name + u' ' + quoted(combo->itemText(m_dice.below(combo->count())));
    }
    if (qobject_cast<QCheckBox*>(control))
        return u"tick "_s + name + (m_dice.chance(60) ? u" on"_s : u" off"_s);
    return (qobject_cast<QRadioButton*>(control) ? u"option "_s : u"click "_s) + name;
}

QString RandomUser::onGrid(DataTable& grid, const QString& name) {
    const int rows = GridCells::count(name);
    const int row = m_dice.chance(90) && rows > 0 ? m_dice.below(rows) : -1;
    QString place = QString::number(row);
    const bool opened =
        row >= 0 && grid.hasChild(row) && GridCells::cellText(name + u"[%1,1]"_s.arg(row)) == u"-"_s;
    const int children = opened ? GridCells::count(name + u"[%1]"_s.arg(row)) : 0;
    const bool child = children > 0 && m_dice.chance(70);
    if (child) place += u"/%1"_s.arg(m_dice.below(children));
    constexpr const char16_t* ways[] = {u"open", u"open", u"down", u"context"};
    // A category's visible part is one wide cell.
    const bool category = name.endsWith(u"tblKUebers"_s) && !child;
    const int column = row < 0 ? 0 : m_dice.chance(category ? 70 : 10) ? -5 : category ? 2 : m_dice.below(4);
    return u"%1 %2 %3 %4"_s.arg(QString::fromUtf16(m_dice.pick(ways)), name, place).arg(column);
}

/// Sometimes after midnight or New Year.
QString RandomUser::startAgain() {
    if (m_program.boxes().unusedAnswers() < answersAhead)
        return m_dice.chance(80) ? u"answer yes"_s : u"answer no"_s;
    if (m_dice.chance(30)) {
        m_today = m_dice.chance(60) ? m_today.addDays(m_dice.below(40))
                                    : m_today.addYears(m_dice.chance(85) ? 1 : -1);
        return setsClock();
    }
    if (m_dice.chance(10)) return u"printers %1"_s.arg(m_dice.below(2));
    return comeBack().first();
}

QString RandomUser::logIn() {
    const QStringList users = m_program.file().query(u"SELECT Name FROM Benutzer"_s);
    if (m_dice.chance(40) && !users.isEmpty())
        return u"login "_s + quoted(users[m_dice.below(int(users.size()))]) + u" \"\""_s;
    return comeBack().last();
}

QStringList RandomUser::comeBack() {
    const QString find =
        u"SELECT b.Name FROM Benutzer b, Gruppen g WHERE g.GNr = b.GNr AND g.Benutzerverwaltung AND g.System "
        u"AND "
        u"b.Passwort = '' AND b.Name NOT GLOB '*[^A-Za-z]*' AND 1 = (SELECT COUNT(*) FROM Benutzer z WHERE "
        u"z.Passwort = '' AND z.Name = b.Name COLLATE NOCASE)"_s;
    QStringList lines = {u"start"_s};
    QString name = m_program.file().query(find).value(0);
    if (name.isEmpty()) {
        name = u"Nachfolger"_s;
        const int rights = m_program.file().query(u"PRAGMA table_info(Gruppen)"_s).size() - 2;
        lines.prepend(u"sql \"INSERT INTO Gruppen VALUES (NULL,'Alle'%1); "_s.arg(u",1"_s.repeated(rights)) +
                      u"INSERT INTO Benutzer VALUES (NULL,'Nachfolger','',last_insert_rowid())\""_s);
    }
    lines.append(u"login %1 \"\""_s.arg(name));
    return lines;
}
