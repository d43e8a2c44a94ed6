#pragma once

#include <QString>

enum MsgBoxStyle { vbOKOnly = 0, vbYesNo = 4, vbCritical = 16, vbExclamation = 48, vbInformation = 64 };
enum MsgBoxResult { vbOK = 1, vbYes = 6, vbNo = 7 };

/// Shows message boxes. The program's implementation opens a window; those of the tests and of the scenario
/// player answer by themselves.
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    /// Blocks until answered. `style` is an icon, for a question plus vbYesNo. Closing a question by its
    /// border gives vbNo.
    virtual MsgBoxResult show(const QString& text, int style, const QString& title) = 0;
};

/// Sets the implementation, which must outlive its use. Call before MsgBox().
void setMessageBoxes(MessageBoxes* boxes);

/// Shows a message box and returns the answer. Throws ProgramEnded if the program was ended over the box.
MsgBoxResult MsgBox(const QString& text, int style = vbOKOnly,
                    const QString& title = QStringLiteral("Uferwart"));
