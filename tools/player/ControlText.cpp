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
#include <optional>

using namespace Qt::StringLiterals;

namespace {

QString onOrOff(bool on) { return on ? u"on"_s : u"off"_s; }

/// A caption without the & of its mnemonic.
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

/// Nothing for a control without a text.
std::optional<QString> textOf(const QWidget* control) {
    if (const auto* box = qobject_cast<const QLineEdit*>(control)) return box->text();
    if (const auto* memo = qobject_cast<const MemoBox*>(control)) return memo->Text();
    if (const auto* combo = qobject_cast<const QComboBox*>(control)) return combo->currentText();
    if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(control)) return spin->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(control)) return shownOnButton(button);
    if (const auto* frame = qobject_cast<const QGroupBox*>(control)) return withoutMnemonic(frame->title());
    if (const auto* bar = qobject_cast<const ProgressBar*>(control)) return QString::number(bar->progress());
    if (const auto* tabs = qobject_cast<const QTabWidget*>(control))
        return withoutMnemonic(tabs->tabText(tabs->currentIndex()));
    if (const auto* screen = qobject_cast<const Screen*>(control)) return screen->windowTitle();
    const auto* label = qobject_cast<const QLabel*>(control);
    if (!label) return std::nullopt;
    return label->buddy() ? withoutMnemonic(label->text()) : label->text();
}

} // namespace

namespace ControlText {

QString shown(const QString& name) {
    if (MenuItems::isItem(name)) return shownOnItem(MenuItems::find(name));
    if (GridCells::isCell(name)) return GridCells::cellText(name);
    const QWidget* control = Controls::find(name);
    const auto text = textOf(control);
    if (!text) Controls::refuseKind(name, u"control with a text"_s);
    return lineText(*text);
}

bool isEnabled(const QString& name) {
    return MenuItems::isItem(name) ? MenuItems::find(name)->isEnabled() : Controls::find(name)->isEnabled();
}

bool isVisible(const QString& name) {
    if (MenuItems::isItem(name)) return MenuItems::isVisible(MenuItems::find(name));
    const bool isScreen = !name.contains(u'.');
    // A screen that is not loaded is no error: it is invisible.
    if (isScreen && !Screens::byName(name)) return false;
    return Controls::find(name)->isVisible();
}

QStringList entries(const QString& comboName) {
    const auto* combo = Controls::find<QComboBox>(comboName, u"combo box"_s);
    QStringList entries;
    for (int entry = 0; entry < combo->count(); ++entry) entries.append(combo->itemText(entry));
    return entries;
}

QString heads(const QString& gridName) {
    const QVector<QString> heads = Controls::find<DataTable>(gridName, u"grid"_s)->visibleHeads();
    return QStringList(heads.begin(), heads.end()).join(u'|');
}

int count(const QString& name) {
    if (GridCells::isCell(name)) return GridCells::count(name);
    const auto* combo = qobject_cast<QComboBox*>(Controls::find(name));
    return combo ? combo->count() : GridCells::count(name);
}

} // namespace ControlText
