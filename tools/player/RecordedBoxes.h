#pragma once

#include "MsgBox.h"

#include <QStringList>

/// Takes the boxes of the program instead of showing them, and answers its questions from a queue.
class RecordedBoxes final : public MessageBoxes {
public:
    MsgBoxResult show(const QString& text, int style, const QString& title) override;

    void queueAnswer(MsgBoxResult answer) { m_answers.append(answer); }
    qsizetype unusedAnswers() const { return m_answers.size(); }

    /// The boxes since the last call, a line each.
    QStringList take();
    /// As above, each box by its kind or, where its title names an error, by the error's number.
    QStringList takeKinds();
    /// The questions since the last call for which no answer was queued; they were answered no.
    QStringList takeUnanswered();

private:
    MsgBoxResult answer(const QString& box);

    QStringList m_boxes;
    QStringList m_unanswered;
    QList<MsgBoxResult> m_answers;
};
