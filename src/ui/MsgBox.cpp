#include "MsgBox.h"

#include "QtMessageBoxes.h"

namespace {
MessageBoxes* boxesInForce = nullptr;
}

void setMessageBoxes(MessageBoxes* boxes) { boxesInForce = boxes; }

MsgBoxResult MsgBox(const QString& text, int style, const QString& title) {
    if (boxesInForce) return boxesInForce->show(text, style, title);
    QtMessageBoxes windows;
    return windows.show(text, style, title);
}
