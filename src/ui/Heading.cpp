#include "Heading.h"

namespace {
constexpr double headingPoints = 16;
}

Heading::Heading(const QString& text, QWidget* parent)
    : QLabel(text, parent) {
    setObjectName(u"Ueberschrift"_qs);
    setTextFormat(Qt::PlainText);
    QFont face = font();
    face.setFamilies({u"Comic Sans MS"_qs, u"Comic Neue"_qs});
    face.setPointSizeF(headingPoints);
    face.setBold(true);
    setFont(face);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}
