#include "Heading.h"

#include "Theme.h"

#include <QEvent>

using namespace Qt::StringLiterals;

namespace {
constexpr double headingPoints = 16;
constexpr QMargins room(12, 8, 12, 4);
} // namespace

HeadingText::HeadingText(const QString& text, QWidget* parent)
    : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
    takeInk();
}

void HeadingText::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::StyleChange) takeInk();
}

void HeadingText::takeInk() {
    QPalette inks = palette();
    inks.setColor(QPalette::WindowText, Theme::headingInk());
    setPalette(inks);
}

Heading::Heading(QStringView text, QWidget* parent)
    : HeadingText(text.toString(), parent) {
    setObjectName(u"Ueberschrift"_s);
    QFont face = font();
    face.setFamilies({u"Comic Sans MS"_s, u"Comic Neue"_s});
    face.setPointSizeF(headingPoints);
    face.setBold(true);
    setFont(face);
    setContentsMargins(room);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}
