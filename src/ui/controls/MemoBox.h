#pragma once

#include "FocusMove.h"

#include <QPlainTextEdit>

/// A text box of several lines with a vertical scroll bar. Tab leaves it.
class MemoBox : public QPlainTextEdit {
    Q_OBJECT

public:
    /// Refuses characters beyond the limit, pasted ones too; 0 is no limit. A line break counts as two
    /// characters, since the tables hold two for it.
    explicit MemoBox(QStringView name, QWidget* parent = nullptr, int limit = 0);

    /// Joins lines by carriage return and line feed, as the tables hold them.
    QString Text() const;
    /// Takes line breaks of any kind.
    void setText(const QString& text);

Q_SIGNALS:
    void LostFocus();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    bool event(QEvent* event) override;

private:
    QString whatFits(const QString& text) const;

    int m_limit;
    FocusState m_focus;
};
