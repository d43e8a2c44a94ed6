#include "ControlActions.h"

#include "CommandFailure.h"
#include "ControlText.h"
#include "Controls.h"
#include "EventGuard.h"
#include "GridCells.h"
#include "Hand.h"
#include "Main.h"
#include "NavigationBar.h"
#include "Screens.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

void clickOn(QWidget* widget, QPoint place, const QString& name) {
    Controls::requireReachable(widget, place, name);
    Hand::click(widget, place);
}

/// The centre of the mark of a check box or an option. A click there works whatever the width of the control.
QPoint markOf(const QAbstractButton* button, QStyle::SubElement mark) {
    QStyleOptionButton look;
    look.initFrom(button);
    return button->style()->subElementRect(mark, &look, button).center();
}

QPoint placeOn(const QAbstractButton* button) {
    if (qobject_cast<const QCheckBox*>(button)) return markOf(button, QStyle::SE_CheckBoxIndicator);
    if (qobject_cast<const QRadioButton*>(button)) return markOf(button, QStyle::SE_RadioButtonIndicator);
    return button->rect().center();
}

void clickButton(QAbstractButton* button, const QString& name) { clickOn(button, placeOn(button), name); }

/// The text field of a control, also that inside an editable combo box. Null if there is none.
QWidget* textField(QWidget* control) {
    if (auto* combo = qobject_cast<QComboBox*>(control)) return combo->lineEdit();
    if (qobject_cast<QLineEdit*>(control) || qobject_cast<QPlainTextEdit*>(control)) return control;
    return nullptr;
}

/// Clicks behind the text, then presses End, since a long text ends outside the field.
void clickBehindText(QWidget* field, const QString& name) {
    constexpr int margin = 6;
    clickOn(field, {std::max(field->width() - margin, field->width() / 2), field->height() / 2}, name);
    if (field->hasFocus() && field->inputMethodQuery(Qt::ImCurrentSelection).toString().isEmpty())
        Hand::key(Qt::Key_End, qobject_cast<QLineEdit*>(field) ? Qt::NoModifier : Qt::ControlModifier);
}

QWidget* requireTextField(const QString& name) {
    QWidget* field = textField(Controls::find(name));
    if (!field) Controls::refuseKind(name, u"text field"_s);
    Controls::requireUsable(field, name);
    return field;
}

/// Clicks a second time if the first click does not give the focus. A handler may move it elsewhere at the
/// first click, as on leaving the note of the catch book, and a user would click again.
void enterField(const QString& name) {
    QWidget* field = requireTextField(name);
    constexpr int clicks = 2;
    for (int click = 0; click < clicks && !field->hasFocus(); ++click) clickBehindText(field, name);
    if (!field->hasFocus()) throw CommandFailure{u"%1 does not take the focus"_s.arg(name)};
}

/// Types the year first and the day last, so that every date in between exists.
void typeSections(QDateTimeEdit* edit, QDate date) {
    const std::pair<QDateTimeEdit::Section, QString> parts[] = {{QDateTimeEdit::YearSection, u"yyyy"_s},
                                                                {QDateTimeEdit::MonthSection, u"MM"_s},
                                                                {QDateTimeEdit::DaySection, u"dd"_s}};
    for (const auto& [section, format] : parts) {
        edit->setSelectedSection(section);
        Hand::type(date.toString(format));
    }
}

QPoint arrowOf(const QComboBox* combo) {
    QStyleOptionComboBox look;
    look.initFrom(combo);
    look.editable = combo->isEditable();
    look.subControls = QStyle::SC_All;
    return combo->style()
        ->subControlRect(QStyle::CC_ComboBox, &look, QStyle::SC_ComboBoxArrow, combo)
        .center();
}

/// Moves the mouse inside the list first. Without that the list does not take the release as a choice.
void clickEntry(QComboBox* combo, int entry, const QString& name) {
    QAbstractItemView* list = combo->view();
    if (!list->isVisible()) throw CommandFailure{u"the list of %1 did not open"_s.arg(name)};
    const QModelIndex index = combo->model()->index(entry, combo->modelColumn(), combo->rootModelIndex());
    list->scrollTo(index);
    QWidget* face = list->viewport();
    Hand::move(face, face->rect().bottomRight());
    Hand::move(face, face->rect().topLeft());
    Hand::click(face, list->visualRect(index).center());
}

std::pair<QWidget*, QPoint> reachCell(const QString& grid, const QString& row, const QString& column) {
    auto* table = Controls::find<DataTable>(grid, u"grid"_s);
    Controls::requireUsable(table, grid);
    const GridCells::Row there = GridCells::parseRow(row);
    const QPoint place = GridCells::placeOf(table, grid, there, GridCells::parseNumber(column));
    Controls::requireReachable(table->viewport(), place, grid);
    return {table->viewport(), place};
}

NavigationBar* bar() { return qobject_cast<Main*>(Controls::findScreen(u"Main"_s))->ButtnBar; }

QWidget* keyReceiver(Screen* screen) {
    QWidget* focused = QApplication::focusWidget();
    if (focused && (focused == screen || screen->isAncestorOf(focused))) return nullptr;
    return screen->focusWidget() ? screen->focusWidget() : screen;
}

} // namespace

namespace ControlActions {

void type(const QString& name, const QString& text) {
    enterField(name);
    Hand::type(text);
}

void set(const QString& name, const QString& text) {
    enterField(name);
    const bool nothingToReplace = ControlText::shown(name).isEmpty();
    if (!nothingToReplace) Hand::key(Qt::Key_A, Qt::ControlModifier);
    if (!text.isEmpty())
        Hand::type(text);
    else if (!nothingToReplace)
        Hand::key(Qt::Key_Delete);
}

void paste(const QString& name, const QString& text) {
    enterField(name);
    if (!ControlText::shown(name).isEmpty()) Hand::key(Qt::Key_A, Qt::ControlModifier);
    QGuiApplication::clipboard()->setText(text);
    Hand::key(Qt::Key_V, Qt::ControlModifier);
}

void choose(const QString& name, const QString& entry) {
    auto* combo = Controls::find<QComboBox>(name, u"combo box"_s);
    const int place = combo->findText(entry, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (place < 0)
        throw CommandFailure{
            u"%1 has only the entries %2"_s.arg(name, ControlText::entries(name).join(u'|'))};
    clickOn(combo, arrowOf(combo), name);
    clickEntry(combo, place, name);
}

void tick(const QString& name, bool on) {
    auto* box = Controls::find<QCheckBox>(name, u"check box"_s);
    Controls::requireUsable(box, name);
    if (box->isChecked() != on) clickButton(box, name);
}

void option(const QString& name) {
    clickButton(Controls::find<QRadioButton>(name, u"option button"_s), name);
}

void click(const QString& name) {
    QWidget* control = Controls::find(name);
    if (auto* button = qobject_cast<QAbstractButton*>(control)) return clickButton(button, name);
    clickOn(control, control->rect().center(), name);
}

void setDate(const QString& name, QDate date) {
    QWidget* control = Controls::find(name);
    auto* field = control->findChild<QLineEdit*>();
    if (!field) Controls::refuseKind(name, u"date control"_s);
    clickOn(field, {field->width() / 2, field->height() / 2}, name);
    if (auto* edit = qobject_cast<QDateTimeEdit*>(control)) return typeSections(edit, date);
    Hand::key(Qt::Key_A, Qt::ControlModifier);
    Hand::type(date.toString(u"dd.MM.yyyy"_s));
}

void selectTab(const QString& name, int page) {
    QWidget* control = Controls::find(name);
    const auto* pages = qobject_cast<QTabWidget*>(control);
    QTabBar* tabs = pages ? pages->tabBar() : qobject_cast<QTabBar*>(control);
    if (!tabs) Controls::refuseKind(name, u"tab control"_s);
    if (page < 0 || page >= tabs->count()) throw CommandFailure{u"%1 has no page %2"_s.arg(name).arg(page)};
    if (!tabs->isTabEnabled(page)) throw CommandFailure{u"page %1 is not enabled"_s.arg(page)};
    clickOn(tabs, tabs->tabRect(page).center(), name);
}

// Clicks text fields only. Other controls get the focus directly, since a click would do more than that.
void focus(const QString& name) {
    QWidget* control = Controls::find(name);
    Controls::requireUsable(control, name);
    if (QWidget* field = textField(control)) return clickBehindText(field, name);
    if (!(control->focusPolicy() & Qt::ClickFocus))
        throw CommandFailure{u"%1 takes no focus by a click"_s.arg(name)};
    Hand::activateWindowOf(control);
    control->setFocus(Qt::MouseFocusReason);
    Hand::settle();
}

void pressKey(const QString& screenName, const QString& key) {
    Screen* screen = Controls::findScreen(screenName);
    Controls::requireUsable(screen, screenName);
    Hand::activateWindowOf(screen);
    if (QWidget* receiver = keyReceiver(screen)) receiver->setFocus(Qt::OtherFocusReason);
    if (!Hand::namedKey(key)) throw CommandFailure{u"there is no key %1"_s.arg(key)};
}

// A screen on the stage has no border to close it by: its Form_QueryUnload is called directly.
void close(const QString& screenName) {
    Screen* screen = Controls::findScreen(screenName);
    Controls::requireUsable(screen, screenName);
    if (screen->isWindow())
        screen->close();
    else
        runEvent([screen] { screen->Form_QueryUnload(); });
    Hand::settle();
}

void clickBarItem(const QString& key) {
    BarItem* item = bar()->item(key);
    if (!item) throw CommandFailure{u"the bar has no item %1"_s.arg(key)};
    clickButton(item, key);
}

void openCell(const QString& grid, const QString& row, const QString& column) {
    const auto [face, place] = reachCell(grid, row, column);
    Hand::doubleClick(face, place);
}

void pressCell(const QString& grid, const QString& row, const QString& column, Qt::MouseButton button) {
    const auto [face, place] = reachCell(grid, row, column);
    Hand::click(face, place, button);
}

void logIn(const QString& name, const QString& password) {
    set(u"Login.txtBenutzer"_s, name);
    set(u"Login.txtPassw"_s, password);
    pressKey(u"Login"_s, u"Return"_s);
}

} // namespace ControlActions
