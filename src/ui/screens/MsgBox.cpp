#include "MsgBox.h"

#include "EventGuard.h"

namespace {
MessageBoxes* current = nullptr;
}

void setMessageBoxes(MessageBoxes* boxes) { current = boxes; }

MsgBoxResult MsgBox(const QString& text, int style, const QString& title) {
    Q_ASSERT_X(current, "MsgBox", "setMessageBoxes() has not been called");
    const MsgBoxResult answer = current->show(text, style, title);
    // Nobody has given it: the program was ended over the box.
    if (eventsEnded()) throw ProgramEnded{};
    return answer;
}
