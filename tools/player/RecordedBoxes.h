#pragma once

#include "MsgBox.h"

#include <QStringList>

/// Records the message boxes of the program instead of showing them, and answers its questions from a queue.
class RecordedBoxes final : public MessageBoxes {
public:
    MsgBoxResult show(const QString& text, int style, const QString& title) override;

    void queueAnswer(MsgBoxResult answer) { m_answers.append(answer); }
    qsizetype unusedAnswers() const { return m_answers.size(); }

    /// The message boxes since the last call, a line each.
    QStringList take();
    /// As above, but only the kind of each box or, if its title names an error, the number of the error.
    QStringList takeKinds();
    /// The questions since the last call without a queued answer. They were answered No.
    QStringList takeUnanswered();

private:
    MsgBoxResult answer(const QString& box);

    QStringList m_boxes;
    QStringList m_unanswered;
    QList<MsgBoxResult> m_answers;
};
