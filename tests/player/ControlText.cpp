#include "ControlText.h"

#include "Controls.h"
#include "GridCells.h"
#include "LineText.h"
#include "MemoBox.h"
#include "MenuItems.h"
#include "ProgressBar.h"
#include "Screens.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>

namespace {

QString onOrOff(bool on) { return on ? u"on"_qs : u"off"_qs; }

/// A caption without the marks of its mnemonics.
QString withoutMnemonic(QString caption) {
    for (qsizetype at = caption.indexOf(u'&'); at >= 0; at = caption.indexOf(u'&', at + 1))
        caption.remove(at, 1);
    return caption;
}

QString shownOnButton(const QAbstractButton* button) {
    const bool hasMark = qobject_cast<const QCheckBox*>(button) || qobject_cast<const QRadioButton*>(button);
    return hasMark ? onOrOff(button->isChecked()) : withoutMnemonic(button->text());
}

QString shownOnItem(const QAction* item) {
    return item->isCheckable() ? onOrOff(item->isChecked()) : withoutMnemonic(item->text());
}

template<typename T, typename Text>
bool readAs(const QWidget* control, QString& text, Text read) {
    const auto* kind = qobject_cast<const T*>(control);
    if (kind) text = read(kind);
    return kind;
}

bool readText(const QWidget* control, QString& text) {
    return readAs<QLineEdit>(control, text, [](const auto* box) { return box->text(); }) ||
           readAs<MemoBox>(control, text, [](const auto* box) { return box->Text(); }) ||
           readAs<QComboBox>(control, text, [](const auto* box) { return box->currentText(); }) ||
           readAs<QAbstractSpinBox>(control, text, [](const auto* box) { return box->text(); });
}

bool readFace(const QWidget* control, QString& text) {
    return readAs<QLabel>(control, text,
                          [](const auto* label) {
                              return label->buddy() ? withoutMnemonic(label->text()) : label->text();
                          }) ||
           readAs<QAbstractButton>(control, text, shownOnButton) ||
           readAs<QGroupBox>(control, text,
                             [](const auto* frame) { return withoutMnemonic(frame->title()); }) ||
           readAs<ProgressBar>(control, text,
                               [](const auto* bar) { return QString::number(bar->progress()); }) ||
           readAs<QTabWidget>(
               control, text,
               [](const auto* tabs) { return withoutMnemonic(tabs->tabText(tabs->currentIndex())); }) ||
           readAs<Screen>(control, text, [](const auto* screen) { return screen->windowTitle(); });
}

} // namespace

namespace ControlText {

QString shown(const QString& name) {
    if (MenuItems::isItem(name)) return shownOnItem(MenuItems::find(name));
    if (GridCells::isCell(name)) return GridCells::cellText(name);
    const QWidget* control = Controls::find(name);
    QString text;
    if (!readText(control, text) && !readFace(control, text))
        Controls::refuseKind(name, u"control with a text"_qs);
    return lineText(text);
}

bool isEnabled(const QString& name) {
    return MenuItems::isItem(name) ? MenuItems::find(name)->isEnabled() : Controls::find(name)->isEnabled();
}

bool isVisible(const QString& name) {
    if (MenuItems::isItem(name)) return MenuItems::isVisible(MenuItems::find(name));
    const bool isScreen = !name.contains(u'.');
    // A screen that is not there is one that nobody sees.
    if (isScreen && !Screens::byName(name)) return false;
    return Controls::find(name)->isVisible();
}

QStringList entries(const QString& comboName) {
    const auto* combo = Controls::find<QComboBox>(comboName, u"combo box"_qs);
    QStringList entries;
    for (int entry = 0; entry < combo->count(); ++entry) entries.append(combo->itemText(entry));
    return entries;
}

QString heads(const QString& gridName) {
    const QVector<QString> heads = Controls::find<DataTable>(gridName, u"grid"_qs)->visibleHeads();
    return QStringList(heads.begin(), heads.end()).join(u'|');
}

int count(const QString& name) {
    if (GridCells::isCell(name)) return GridCells::count(name);
    const auto* combo = qobject_cast<QComboBox*>(Controls::find(name));
    return combo ? combo->count() : GridCells::count(name);
}

} // namespace ControlText
