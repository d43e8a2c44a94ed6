#include "MsgBox.h"

#include "EventGuard.h"
#include "QtMessageBoxes.h"

namespace {
MessageBoxes* boxesInForce = nullptr;
}

void setMessageBoxes(MessageBoxes* boxes) { boxesInForce = boxes; }

MsgBoxResult MsgBox(const QString& text, int style, const QString& title) {
    QtMessageBoxes windows;
    MessageBoxes& boxes = boxesInForce ? *boxesInForce : windows;
    const MsgBoxResult answer = boxes.show(text, style, title);
    // Nobody has given it: the program was ended over the box.
    if (eventsEnded()) throw ProgramEnded{};
    return answer;
}
