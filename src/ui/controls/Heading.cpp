#include "Heading.h"

#include "Theme.h"

#include <QEvent>

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

Heading::Heading(const QString& text, QWidget* parent)
    : HeadingText(text, parent) {
    setObjectName(u"Ueberschrift"_qs);
    QFont face = font();
    face.setFamilies({u"Comic Sans MS"_qs, u"Comic Neue"_qs});
    face.setPointSizeF(headingPoints);
    face.setBold(true);
    setFont(face);
    setContentsMargins(room);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}
