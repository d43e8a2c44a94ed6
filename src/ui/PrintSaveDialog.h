#pragma once

#include <QString>

/// Asks the user for the file that a PDF is to be saved as.
class PrintSaveDialog {
public:
    virtual ~PrintSaveDialog() = default;
    /// `proposal` is a file name without folder; an empty result means that the user has called it off.
    virtual QString choose(const QString& proposal) = 0;
};

/// Puts an implementation in force; it must outlive its use. With null, it is the platform's dialog.
void setPrintSaveDialog(PrintSaveDialog* dialog);

QString choosePdfFile(const QString& proposal);
/// The caption as a file name, without the signs that some system refuses.
QString pdfNameFor(QString caption);
