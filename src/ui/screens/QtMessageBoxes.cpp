#include "QtMessageBoxes.h"

#include "KeyGuard.h"
#include "LineBreaks.h"
#include "Stage.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int iconBits = 0x70;

QMessageBox::Icon iconOf(int style) {
    switch (style & iconBits) {
    case vbCritical:
        return QMessageBox::Critical;
    case vbExclamation:
        return QMessageBox::Warning;
    case vbInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

QWidget* windowBelow() {
    if (QWidget* active = QApplication::activeWindow()) return active;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    const Stage* stage = Stage::current();
    QWidget* frame = stage ? stage->window() : nullptr;
    return frame && frame->isVisible() ? frame : nullptr;
}

// Sets the caption: Qt's own may lack its translation, or come in the desktop's language.
void addButton(QMessageBox& box, QMessageBox::StandardButton which, const QString& german) {
    box.addButton(which)->setText(german);
}

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
    const bool question = (style & vbYesNo) != 0;
    QMessageBox box(windowBelow());
    box.setWindowTitle(title);
    box.setIcon(iconOf(style));
    box.setTextFormat(Qt::PlainText);
    box.setText(withPlainBreaks(text));
    keepLines(box);
    if (question) {
        addButton(box, QMessageBox::Yes, u"&Ja"_s);
        addButton(box, QMessageBox::No, u"&Nein"_s);
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
