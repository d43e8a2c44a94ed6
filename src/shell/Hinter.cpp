#include "Hinter.h"

#include "Face.h"
#include "Theme.h"

#include <QBoxLayout>
#include <QIcon>
#include <QLabel>

Hinter::Hinter()
    : Screen(u"Hinter"_qs, u"Hintergrund"_qs) {
    Picture1 = Face::label(u"Picture1"_qs, QString(), this);
    Picture1->setPixmap(Theme::icon(u"hinter"_qs).pixmap(QSize(480, 300), devicePixelRatio()));
    Face::column(this)->addWidget(Picture1);
}
