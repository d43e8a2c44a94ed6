#pragma once

#include <QString>

enum MsgBoxStyle { vbOKOnly = 0, vbYesNo = 4, vbCritical = 16, vbExclamation = 48, vbInformation = 64 };
enum MsgBoxResult { vbOK = 1, vbYes = 6, vbNo = 7 };

/// Shows boxes to whoever sits in front of the program. The real one opens a window; tests and the scenario
/// player answer by themselves.
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    /// Blocks until answered. `style` is an icon plus, for a question, vbYesNo; closing a question by its
    /// border is vbNo.
    virtual MsgBoxResult show(const QString& text, int style, const QString& title) = 0;
};

/// Sets the implementation; it must outlive its use. To be called before MsgBox().
void setMessageBoxes(MessageBoxes* boxes);

/// The one way to a box.
MsgBoxResult MsgBox(const QString& text, int style = vbOKOnly,
                    const QString& title = QStringLiteral("Uferwart"));
