#include "Heading.h"

#include "Theme.h"

using namespace Qt::StringLiterals;

namespace {
constexpr double headingPoints = 16;
constexpr QMargins room(12, 8, 12, 4);
} // namespace

Heading::Heading(QStringView text, QWidget* parent)
    : QLabel(text.toString(), parent) {
    setTextFormat(Qt::PlainText);
    setForegroundRole(Theme::headingRole);
    setObjectName(u"Ueberschrift"_s);
    QFont face = font();
    face.setFamilies({u"Comic Sans MS"_s, u"Comic Neue"_s});
    face.setPointSizeF(headingPoints);
    face.setBold(true);
    setFont(face);
    setContentsMargins(room);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}
