#include "QtMessageBoxes.h"

#include "KeyGuard.h"
#include "LineBreaks.h"
#include "Stage.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Qt would wrap the lines of a text to half the screen. Their breaks are given, so they stay as they are as
/// long as the screen has room.
void keepLines(QMessageBox& box) {
    auto* label = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
    if (!label) return;
    const int room = box.screen()->availableGeometry().width() * 3 / 4;
    const QSize lines = label->fontMetrics().size(0, box.text());
    label->setMinimumWidth(std::min(lines.width() + label->fontMetrics().averageCharWidth(), room));
}

} // namespace

MsgBoxResult QtMessageBoxes::show(const QString& text, int style, const QString& title) {
    constexpr QMessageBox::Icon icons[] = {QMessageBox::NoIcon, QMessageBox::Critical, QMessageBox::Question,
                                           QMessageBox::Warning, QMessageBox::Information};
    const bool question = (style & vbYesNo) != 0;
    QMessageBox box(Stage::windowBelow());
    box.setWindowTitle(title);
    box.setIcon(icons[style / vbCritical]);
    box.setTextFormat(Qt::PlainText);
    box.setText(withPlainBreaks(text));
    keepLines(box);
    if (question) {
        // Qt's own captions may lack their translation, or come in the desktop's language.
        box.addButton(QMessageBox::Yes)->setText(u"&Ja"_s);
        box.addButton(QMessageBox::No)->setText(u"&Nein"_s);
        box.setDefaultButton(QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::No);
    } else {
        box.setStandardButtons(QMessageBox::Ok);
    }
    const KeyGuard guard(&box);
    const int answer = box.exec();
    if (!question) return vbOK;
    return answer == QMessageBox::Yes ? vbYes : vbNo;
}
