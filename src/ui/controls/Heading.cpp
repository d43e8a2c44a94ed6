#include "Heading.h"

#include "Theme.h"

using namespace Qt::StringLiterals;

Heading::Heading(QStringView text, QWidget* parent)
    : QLabel(text.toString(), parent) {
    setTextFormat(Qt::PlainText);
    setForegroundRole(Theme::headingRole);
    setObjectName(u"Ueberschrift"_s);
    QFont face = font();
    face.setFamilies({u"Comic Sans MS"_s, u"Comic Neue"_s});
    face.setPointSizeF(16);
    face.setBold(true);
    setFont(face);
    setContentsMargins(12, 8, 12, 4);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}
