#pragma once

#include "FocusMove.h"

#include <QClipboard>
#include <QLineEdit>
#include <functional>

/// Given a typed character, returns its code to accept it or 0 to refuse it. Also called for Backspace (8)
/// and Enter (13).
using KeyFilter = std::function<int(int code)>;

/// The fate of a character that the key filter refuses. The box beeps in any case.
enum class Refused {
    Dropped,      ///< a pasted text comes without the character
    WithTheWhole, ///< a pasted text comes whole, if it fits, or not at all
    Admitted      ///< the character comes in all the same
};

/// A one-line text box with the events that the screens use. Typed, composed, pasted and dropped texts pass
/// the key filter; setText() and keys such as copy and undo do not.
class TextBox : public QLineEdit {
    Q_OBJECT

public:
    static constexpr int unlimited = 32767;
    /// `limit` is the most characters that the box takes.
    explicit TextBox(QStringView name, QWidget* parent = nullptr, int limit = unlimited);

    /// Shows the beginning of a text that is too long for the box, unless the box has the focus.
    void setText(const QString& text);
    void setKeyFilter(KeyFilter filter, Refused refused = Refused::Dropped);
    void setSelectAllOnFocus(bool on) { m_selectAllOnFocus = on; }
    /// Marks a text that is no date once the box is left. It stays as it is.
    void setHoldsDate();
    /// Room for eight characters, or for all where fewer are let in.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A key that makes a character (or Backspace or Enter) was pressed, whether or not the filter accepts
    /// it. Comes when the key has done its work.
    void KeyDone(int code);
    void LostFocus();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool event(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool passes(uint code) const { return !m_filter || m_filter(static_cast<int>(code)) != 0; }
    /// The part of a pasted or dropped text that the key filter accepts; beeps if that is not all. With
    /// Refused::WithTheWhole it is all or nothing, and nothing also if the text does not fit into `room`.
    QString whatPasses(const QString& text, qsizetype room) const;
    qsizetype roomForPasting() const { return maxLength() - text().size() + selectedText().size(); }
    void pasteFrom(QClipboard::Mode mode);

    KeyFilter m_filter;
    Refused m_refused = Refused::Dropped;
    bool m_selectAllOnFocus = false;
    bool m_selectOnRelease = false;
    FocusState m_focus;
};
