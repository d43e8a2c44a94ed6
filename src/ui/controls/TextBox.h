#pragma once

#include <QClipboard>
#include <QLineEdit>
#include <functional>

/// What a key filter makes of a typed character: the code itself, or 0 to refuse it. Backspace (8) and
/// Enter (13) pass through it as well.
using KeyFilter = std::function<int(int code)>;

/// What becomes of a character that the key filter refuses. It beeps in any case.
enum class Refused {
    Dropped,      ///< what is pasted comes without it
    WithTheWhole, ///< what is pasted comes as a whole, if there is room for it, or not at all
    Admitted      ///< it beeps only
};

/// A one-line text box with the events the screens use. What is typed, composed, pasted or dropped passes the
/// key filter; what a routine puts in does not, nor do keys such as copy and undo.
class TextBox : public QLineEdit {
    Q_OBJECT

public:
    explicit TextBox(const QString& name, QWidget* parent = nullptr);

    QString Text() const { return text(); }
    /// Shows the beginning of a text that is too long for the box, unless somebody is typing in it.
    void setText(const QString& text);
    /// Characters beyond are refused.
    void setLimit(int characters) { setMaxLength(characters); }
    void setKeyFilter(KeyFilter filter, Refused refused = Refused::Dropped);
    void setSelectAllOnFocus(bool on) { m_selectAllOnFocus = on; }
    /// Marks a text that is no date once the box is left. It stays as it is.
    void setHoldsDate();
    /// Room for eight characters, or for all where fewer are let in.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A key that makes a character (or Backspace or Enter) was pressed, whether or not the filter lets it
    /// through. Comes before the text changes.
    void KeyPress(int code);
    /// The same key has had its effect, or none.
    void KeyDone(int code);
    void GotFocus();
    void LostFocus();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void loseFocus();
    bool passes(uint code) const { return !m_filter || m_filter(static_cast<int>(code)) != 0; }
    /// The part of a text from elsewhere that the key filter lets in; beeps if that is not all.
    QString whatPasses(const QString& text, qsizetype room) const;
    qsizetype roomForPasting() const { return maxLength() - text().size() + selectedText().size(); }
    void pasteFrom(QClipboard::Mode mode);

    KeyFilter m_filter;
    Refused m_refused = Refused::Dropped;
    bool m_holdsDate = false;
    bool m_selectAllOnFocus = false;
    bool m_selectOnRelease = false;
    bool m_hasFocus = false;
};
