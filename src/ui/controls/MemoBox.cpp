#include "MemoBox.h"

#include "LineBreaks.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

namespace {

qsizetype storedLength(const QString& text) { return text.size() + text.count(u'\n'); }

QString insertedBy(const QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return u"\n"_s;
    const QString text = event->text();
    return !text.isEmpty() && text.front().isPrint() ? text : QString();
}

} // namespace

MemoBox::MemoBox(QStringView name, QWidget* parent, int limit)
    : QPlainTextEdit(parent)
    , m_limit(limit)
    , m_focus(this, [this] { Q_EMIT LostFocus(); }) {
    setObjectName(name);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

// toRawText(), since toPlainText() turns every no-break space into a common one.
QString MemoBox::Text() const {
    return document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, u"\r\n"_s)
        .replace(QChar::LineSeparator, u"\r\n"_s);
}

void MemoBox::setText(const QString& text) { setPlainText(withPlainBreaks(text)); }

QString MemoBox::whatFits(const QString& text) const {
    if (m_limit <= 0) return text;
    const QString replaced = withPlainBreaks(textCursor().selection().toPlainText());
    qsizetype room = m_limit - storedLength(toPlainText()) + storedLength(replaced);
    qsizetype end = 0;
    for (; end < text.size(); ++end) {
        room -= text[end] == u'\n' ? 2 : 1;
        if (room < 0) break;
    }
    // Never half of a surrogate pair.
    if (end > 0 && end < text.size() && text[end - 1].isHighSurrogate()) --end;
    return text.left(end);
}

// What can't be written in has the ground of a value that only shows.
void MemoBox::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::ReadOnlyChange)
        viewport()->setBackgroundRole(isReadOnly() ? QPalette::Midlight : QPalette::Base);
}

void MemoBox::keyPressEvent(QKeyEvent* event) {
    const QString inserted = insertedBy(event);
    if (whatFits(inserted) == inserted)
        QPlainTextEdit::keyPressEvent(event);
    else
        event->accept();
}

void MemoBox::insertFromMimeData(const QMimeData* source) {
    if (isReadOnly() || !source->hasText()) return;
    textCursor().insertText(whatFits(withPlainBreaks(source->text())));
    ensureCursorVisible();
}

void MemoBox::inputMethodEvent(QInputMethodEvent* event) {
    QInputMethodEvent passed(event->preeditString(), event->attributes());
    passed.setCommitString(whatFits(event->commitString()), event->replacementStart(),
                           event->replacementLength());
    QPlainTextEdit::inputMethodEvent(&passed);
}

bool MemoBox::event(QEvent* event) {
    const bool handled = QPlainTextEdit::event(event);
    m_focus.comesWith(event);
    return handled;
}
