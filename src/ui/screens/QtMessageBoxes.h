#pragma once

#include "MsgBox.h"

/// Message boxes as windows above the active one. The text shows as it is, never as markup. Esc answers a
/// question with no. A key held down since before, or pressed in the first moments, gives no answer.
class QtMessageBoxes : public MessageBoxes {
public:
    MsgBoxResult show(const QString& text, int style, const QString& title) override;
};
