#include "TextBox.h"

#include "Conversions.h"
#include "Theme.h"

#include <QApplication>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int backspaceCode = 8;
constexpr int enterCode = 13;

// The characters that a key makes: nearly always one, none for keys that only move or command.
QList<uint> codesOf(const QKeyEvent* event) {
    const auto modifiers = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (modifiers == Qt::ControlModifier) return {};
    if (event->key() == Qt::Key_Backspace) return {backspaceCode};
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return {enterCode};
    const QList<uint> codes = event->text().toUcs4();
    return std::ranges::all_of(codes, [](uint code) { return QChar::isPrint(code); }) ? codes : QList<uint>();
}

// A copied text often ends in a line break, which one line cannot show.
QString inOneLine(QString text) {
    if (!text.contains(u'\n') && !text.contains(u'\r')) return text;
    return text.replace(u"\r\n"_s, u" "_s).replace(u'\n', u' ').replace(u'\r', u' ').trimmed();
}

} // namespace

TextBox::TextBox(QStringView name, QWidget* parent, int limit)
    : QLineEdit(parent)
    , m_focus(this, [this] {
        m_selectOnRelease = false;
        Q_EMIT LostFocus();
    }) {
    setObjectName(name);
    setMaxLength(limit);
}

void TextBox::setHoldsDate() {
    connect(this, &QLineEdit::textChanged, this, [this] { Theme::setFaulty(this, false); });
    connect(this, &TextBox::LostFocus, this,
            [this] { Theme::setFaulty(this, !text().isEmpty() && !IsDate(text())); });
}

QSize TextBox::minimumSizeHint() const {
    constexpr int characters = 8;
    const QSize room = QLineEdit::minimumSizeHint();
    const int more = std::min(characters, maxLength()) - 1;
    return {room.width() + more * fontMetrics().horizontalAdvance(u'0'), room.height()};
}

void TextBox::setText(const QString& text) {
    QLineEdit::setText(text);
    if (!hasFocus()) setCursorPosition(0);
}

void TextBox::setKeyFilter(KeyFilter filter, Refused refused) {
    m_filter = std::move(filter);
    m_refused = refused;
}

QString TextBox::whatPasses(const QString& text, qsizetype room) const {
    const bool whole = m_refused == Refused::WithTheWhole;
    const QString offered = whole ? inOneLine(text).trimmed() : inOneLine(text);
    if (!m_filter) return offered;
    QString passed;
    bool refused = false;
    for (const uint code : offered.toUcs4()) {
        const bool admitted = passes(code);
        refused |= !admitted;
        if (admitted || m_refused == Refused::Admitted) passed += QChar::fromUcs4(code);
    }
    refused |= whole && passed.size() > room;
    if (refused) QApplication::beep();
    return whole && refused ? QString() : passed;
}

void TextBox::pasteFrom(QClipboard::Mode mode) {
    if (isReadOnly()) return;
    const QString passed = whatPasses(QApplication::clipboard()->text(mode), roomForPasting());
    if (!passed.isEmpty()) insert(passed);
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste)) {
        const bool selection = event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
        return pasteFrom(selection ? QClipboard::Selection : QClipboard::Clipboard);
    }
    const QList<uint> codes = codesOf(event);
    const bool admitted = std::ranges::all_of(codes, [this](uint code) { return passes(code); });
    if (!admitted) QApplication::beep();
    if (admitted || m_refused == Refused::Admitted)
        QLineEdit::keyPressEvent(event);
    else
        event->accept();
    if (codes == QList<uint>{enterCode}) event->ignore();
    for (const uint code : codes) Q_EMIT KeyDone(static_cast<int>(code));
}

// Receives composed characters (accents, desktop input methods), which do not come as keys.
void TextBox::inputMethodEvent(QInputMethodEvent* event) {
    QInputMethodEvent passed(event->preeditString(), event->attributes());
    passed.setCommitString(whatPasses(event->commitString(), roomForPasting()), event->replacementStart(),
                           event->replacementLength());
    QLineEdit::inputMethodEvent(&passed);
    for (const uint code : event->commitString().toUcs4()) Q_EMIT KeyDone(static_cast<int>(code));
}

// Qt's own menu entry would paste past the filter.
void TextBox::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* entry : menu->actions()) {
        if (entry->text().section(u'\t', 0, 0) != QLineEdit::tr("&Paste")) continue;
        disconnect(entry, nullptr, this, nullptr);
        connect(entry, &QAction::triggered, this, [this] { pasteFrom(QClipboard::Clipboard); });
    }
    menu->popup(event->globalPos());
}

void TextBox::dropEvent(QDropEvent* event) {
    // A text moved within the box has passed the filter already.
    if (event->source() == this) return QLineEdit::dropEvent(event);
    QMimeData passed;
    passed.setText(whatPasses(event->mimeData()->text(), maxLength() - text().size()));
    if (passed.text().isEmpty()) return event->ignore();
    QDropEvent drop(event->position(), event->possibleActions(), &passed, event->buttons(),
                    event->modifiers());
    QLineEdit::dropEvent(&drop);
    event->acceptProposedAction();
}

bool TextBox::event(QEvent* event) {
    const bool handled = QLineEdit::event(event);
    if (m_focus.comesWith(event) && m_selectAllOnFocus) {
        m_selectOnRelease = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
        if (!m_selectOnRelease) selectAll();
    }
    return handled;
}

// The press puts the caret at the pointer, so select on release.
void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        deselect();
        return pasteFrom(QClipboard::Selection);
    }
    QLineEdit::mouseReleaseEvent(event);
    if (m_selectOnRelease && !hasSelectedText()) selectAll();
    m_selectOnRelease = false;
}
