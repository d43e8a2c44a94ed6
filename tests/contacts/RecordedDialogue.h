#pragma once

#include "MsgBox.h"

#include <QStringList>

using namespace Qt::StringLiterals;

/// Records the message boxes, each with its style's number in front. Answers questions with `answer`.
class RecordedDialogue final : public MessageBoxes {
public:
    RecordedDialogue() { setMessageBoxes(this); }
    ~RecordedDialogue() override { setMessageBoxes(nullptr); }

    QStringList texts;
    MsgBoxResult answer = vbNo;

    MsgBoxResult show(const QString& text, int style, const QString& title) override {
        texts += u"%1 %2: %3"_s.arg(style).arg(title, text);
        return style == vbYesNo ? answer : vbOK;
    }
};
