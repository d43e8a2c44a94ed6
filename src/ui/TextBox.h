#pragma once

#include <QLineEdit>
#include <functional>

/// What a key filter makes of a typed character: the code itself, or 0 to refuse it. Backspace (8) and
/// Enter (13) pass through it as well.
using KeyFilter = std::function<int(int code)>;

/// A one-line text box with the events the screens use. A refused key beeps (the filter does that) and
/// changes nothing. Pasted text passes no key filter, and keys such as copy and undo are no characters.
class TextBox : public QLineEdit {
    Q_OBJECT

public:
    explicit TextBox(const QString& name, QWidget* parent = nullptr);

    QString Text() const { return text(); }
    /// Shows the beginning of a text that is too long for the box, unless somebody is typing in it.
    void setText(const QString& text);
    /// Characters beyond are refused.
    void setLimit(int characters) { setMaxLength(characters); }
    void setKeyFilter(KeyFilter filter) { m_filter = std::move(filter); }
    void setSelectAllOnFocus(bool on) { m_selectAllOnFocus = on; }
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
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void loseFocus();
    void joinLines(const QString& pasted);

    bool admits(int code);

    KeyFilter m_filter;
    bool m_selectAllOnFocus = false;
    bool m_selectOnRelease = false;
    bool m_hasFocus = false;
};
