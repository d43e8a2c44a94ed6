#include "TextBox.h"

#include "FocusMove.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPointer>
#include <algorithm>

namespace {

constexpr int backspaceCode = 8;
constexpr int enterCode = 13;

bool isShortcut(const QKeyEvent* event) {
    const auto modifiers = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return modifiers == Qt::ControlModifier;
}

// The characters that a key makes; nearly always one, none for keys that only move or command.
QList<uint> codesOf(const QKeyEvent* event) {
    if (isShortcut(event)) return {};
    if (event->key() == Qt::Key_Backspace) return {backspaceCode};
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return {enterCode};
    const QList<uint> codes = event->text().toUcs4();
    const bool printable =
        std::all_of(codes.begin(), codes.end(), [](uint code) { return QChar::isPrint(code); });
    return printable ? codes : QList<uint>();
}

} // namespace

TextBox::TextBox(const QString& name, QWidget* parent)
    : QLineEdit(parent) {
    setObjectName(name);
    whenFocusIsElsewhere(this, [this] { loseFocus(); });
    connect(this, &QLineEdit::textEdited, this, &TextBox::joinLines);
}

QSize TextBox::minimumSizeHint() const {
    constexpr int characters = 8;
    const QSize room = QLineEdit::minimumSizeHint();
    const int more = std::min(characters, maxLength()) - 1;
    return {room.width() + more * fontMetrics().horizontalAdvance(u'0'), room.height()};
}

// A text pasted from elsewhere may end in a line break, which one line cannot show and nobody means to keep.
void TextBox::joinLines(const QString& pasted) {
    if (!pasted.contains(u'\n') && !pasted.contains(u'\r')) return;
    const int caret = cursorPosition();
    QLineEdit::setText(
        QString(pasted).replace(u"\r\n"_qs, u" "_qs).replace(u'\n', u' ').replace(u'\r', u' ').trimmed());
    setCursorPosition(caret);
}

void TextBox::setText(const QString& text) {
    QLineEdit::setText(text);
    if (!hasFocus()) setCursorPosition(0);
}

bool TextBox::admits(int code) {
    Q_EMIT KeyPress(code);
    return !m_filter || m_filter(code) != 0;
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    const QList<uint> codes = codesOf(event);
    // The handlers may close the screen.
    const QPointer<TextBox> alive(this);
    bool admitted = true;
    for (const uint code : codes) {
        admitted = admits(static_cast<int>(code)) && admitted;
        if (!alive) return;
    }
    if (admitted)
        QLineEdit::keyPressEvent(event);
    else
        event->accept();
    if (codes == QList<uint>{enterCode}) event->ignore();
    for (const uint code : codes) {
        if (alive) Q_EMIT KeyDone(static_cast<int>(code));
    }
}

// Composed characters (accents, desktop input methods) come this way instead of as keys.
void TextBox::inputMethodEvent(QInputMethodEvent* event) {
    const QPointer<TextBox> alive(this);
    const QList<uint> codes = event->commitString().toUcs4();
    QString admitted;
    for (const uint code : codes) {
        if (admits(static_cast<int>(code))) admitted += QChar::fromUcs4(code);
        if (!alive) return;
    }
    QInputMethodEvent passed(event->preeditString(), event->attributes());
    passed.setCommitString(admitted, event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(&passed);
    for (const uint code : codes) {
        if (alive) Q_EMIT KeyDone(static_cast<int>(code));
    }
}

void TextBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    // Whoever moved the focus while another window was active: it arrives with the window's return.
    if (!movesFocus(event->reason()) && m_hasFocus) return;
    m_hasFocus = true;
    m_selectOnRelease = m_selectAllOnFocus && event->reason() == Qt::MouseFocusReason;
    if (m_selectAllOnFocus && !m_selectOnRelease) selectAll();
    Q_EMIT GotFocus();
}

void TextBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (movesFocus(event->reason())) loseFocus();
}

void TextBox::loseFocus() {
    if (!m_hasFocus) return;
    m_hasFocus = false;
    m_selectOnRelease = false;
    Q_EMIT LostFocus();
}

// The press has put the caret where the pointer is, so the selection has to wait for the release.
void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (m_selectOnRelease && !hasSelectedText()) selectAll();
    m_selectOnRelease = false;
}
