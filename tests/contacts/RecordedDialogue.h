#pragma once

#include "MsgBox.h"

#include <QStringList>

/// Keeps the texts of the boxes, with their icon's number in front, and answers no question with yes unless
/// told so.
class RecordedDialogue final : public MessageBoxes {
public:
    RecordedDialogue() { setMessageBoxes(this); }
    ~RecordedDialogue() override { setMessageBoxes(nullptr); }

    QStringList texts;
    MsgBoxResult answer = vbNo;

    MsgBoxResult show(const QString& text, int style, const QString& title) override {
        texts += u"%1 %2: %3"_qs.arg(style).arg(title, text);
        return style == vbYesNo ? answer : vbOK;
    }
};
