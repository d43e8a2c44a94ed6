#pragma once

#include "MsgBox.h"

/// Boxes as windows above the active one. The text stands there as it is, never read as markup; Esc answers a
/// question with no. A key held down since before, or pressed in the first moments, answers nothing.
class QtMessageBoxes : public MessageBoxes {
public:
    MsgBoxResult show(const QString& text, int style, const QString& title) override;
};
