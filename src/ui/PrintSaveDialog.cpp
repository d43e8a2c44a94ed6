#include "PrintSaveDialog.h"

#include "KeyGuard.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

namespace {

PrintSaveDialog* inForce = nullptr;

QString askPlatform(const QString& proposal) {
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    QFileDialog dialog(QApplication::activeWindow(), u"Als PDF speichern"_qs, folder.path(),
                       u"PDF-Dateien (*.pdf)"_qs);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"pdf"_qs);
    dialog.selectFile(proposal);
    const KeyGuard guard(&dialog);
    if (dialog.exec() != QDialog::Accepted) return {};
    return dialog.selectedFiles().value(0);
}

} // namespace

void setPrintSaveDialog(PrintSaveDialog* dialog) { inForce = dialog; }

QString choosePdfFile(const QString& proposal) {
    return inForce ? inForce->choose(proposal) : askPlatform(proposal);
}

QString pdfNameFor(QString caption) {
    for (const QChar sign : u"\\/:*?\"<>|"_qs) caption.remove(sign);
    return caption.simplified() + u".pdf"_qs;
}
