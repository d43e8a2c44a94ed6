#include "Heading.h"

namespace {
constexpr double headingPoints = 16;
constexpr QMargins room(12, 8, 12, 4);
} // namespace

Heading::Heading(const QString& text, QWidget* parent)
    : QLabel(text, parent) {
    setObjectName(u"Ueberschrift"_qs);
    setTextFormat(Qt::PlainText);
    QFont face = font();
    face.setFamilies({u"Comic Sans MS"_qs, u"Comic Neue"_qs});
    face.setPointSizeF(headingPoints);
    face.setBold(true);
    setFont(face);
    setContentsMargins(room);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}
