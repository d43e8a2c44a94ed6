#include "MsgBox.h"

#include "EventGuard.h"

namespace {
MessageBoxes* current = nullptr;
}

void setMessageBoxes(MessageBoxes* boxes) { current = boxes; }

MsgBoxResult MsgBox(const QString& text, int style, const QString& title) {
    Q_ASSERT_X(current, "MsgBox", "setMessageBoxes() has not been called");
    const MsgBoxResult answer = current->show(text, style, title);
    // The program was ended over the message box: this is no user's answer.
    if (eventsEnded()) throw ProgramEnded{};
    return answer;
}
