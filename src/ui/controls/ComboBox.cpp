#include "ComboBox.h"

#include "GermanOrder.h"
#include "RuntimeError.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QWheelEvent>
#include <algorithm>
#include <ranges>

using namespace Qt::StringLiterals;

ComboBox::ComboBox(QStringView name, QWidget* parent, Kind kind, Order order)
    : QComboBox(parent)
    , m_order(order) {
    setObjectName(name);
    setEditable(kind == Kind::Editable);
    setInsertPolicy(QComboBox::NoInsert);
    // Without a text for no entry Qt would select the first one that comes into an empty list.
    setPlaceholderText(u" "_s);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::activated, this, &ComboBox::Click);
}

void ComboBox::AddItem(const QString& text) {
    if (m_order == Order::AsAdded) return addItem(text);
    const auto entries = std::views::iota(0, count());
    const auto isBefore = [](const QString& a, const QString& b) { return germanOrder().compare(a, b) < 0; };
    const auto nameOf = [this](int entry) { return itemText(entry); };
    insertItem(*std::ranges::upper_bound(entries, text, isBefore, nameOf), text);
}

void ComboBox::setText(const QString& text) {
    if (isEditable()) {
        setEditText(text);
        return;
    }
    int index = findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) index = findText(text, Qt::MatchFixedString);
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
