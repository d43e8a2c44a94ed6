#include "ComboBox.h"

#include "GermanOrder.h"
#include "RuntimeError.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCollator>
#include <QKeyEvent>
#include <QScreen>
#include <QWheelEvent>
#include <algorithm>

ComboBox::ComboBox(QStringView name, QWidget* parent, Kind kind, Order order)
    : QComboBox(parent)
    , m_order(order) {
    setObjectName(name);
    setEditable(kind == Kind::Editable);
    setInsertPolicy(QComboBox::NoInsert);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::activated, this, &ComboBox::Click);
}

void ComboBox::AddItem(const QString& text) {
    InsertItem(m_order == Order::Sorted ? placeFor(text) : count(), text);
}

void ComboBox::InsertItem(int index, const QString& text) {
    const bool noneSelected = currentIndex() < 0;
    const QString typed = currentText();
    insertItem(index, text);
    // Qt selects the first entry that comes into an empty list.
    if (!noneSelected || currentIndex() < 0) return;
    setCurrentIndex(-1);
    if (isEditable()) setEditText(typed);
}

void ComboBox::setText(const QString& text) {
    if (isEditable()) {
        setEditText(text);
        return;
    }
    const int index = indexOf(text);
    if (index < 0 && !text.isEmpty()) throw runtimeError(RuntimeError::readOnlyProperty);
    setListIndex(index);
}

void ComboBox::setListIndex(int index) {
    if (index < -1 || index >= count()) throw runtimeError(RuntimeError::badPropertyValue);
    if (index == currentIndex()) return;
    setCurrentIndex(index);
    Q_EMIT Click();
}

QSize ComboBox::bounded(QSize hint, int characters) const {
    return hint.boundedTo({characters * fontMetrics().averageCharWidth(), QWIDGETSIZE_MAX});
}

QSize ComboBox::sizeHint() const { return bounded(QComboBox::sizeHint(), 28); }

QSize ComboBox::minimumSizeHint() const { return bounded(QComboBox::minimumSizeHint(), 16); }

void ComboBox::showPopup() {
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, view());
    const int room = screen()->availableGeometry().width() - 2 * scrollBar;
    view()->setMinimumWidth(std::min(view()->sizeHintForColumn(0) + 2 * scrollBar, room));
    QComboBox::showPopup();
}

// The space bar opens the list, but within a name being typed a space is a letter like any other.
void ComboBox::keyPressEvent(QKeyEvent* event) {
    // Ctrl+Tab belongs to the tabs around. Qt would take it for the beginning of a name.
    if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) return event->ignore();
    const bool searching =
        m_lastLetter.isValid() && !m_lastLetter.hasExpired(QApplication::keyboardInputInterval());
    const bool blank = event->key() == Qt::Key_Space;
    const bool inName = blank && searching && !isEditable();
    const bool letter = !blank && !event->text().isEmpty() && event->text().front().isPrint();
    if (letter || inName) m_lastLetter.start();
    if (!inName) return QComboBox::keyPressEvent(event);
    QKeyEvent asLetter(QEvent::KeyPress, 0, event->modifiers(), event->text());
    QComboBox::keyPressEvent(&asLetter);
}

// Scrolling a screen must not change the fields that pass under the pointer.
void ComboBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

int ComboBox::placeFor(const QString& text) const {
    int first = 0;
    int last = count();
    while (first < last) {
        const int middle = (first + last) / 2;
        if (germanOrder().compare(itemText(middle), text) <= 0)
            first = middle + 1;
        else
            last = middle;
    }
    return first;
}

int ComboBox::indexOf(const QString& text) const {
    const int exact = findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    return exact >= 0 ? exact : findText(text, Qt::MatchFixedString);
}
