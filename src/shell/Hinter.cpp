#include "Hinter.h"

#include "Layout.h"
#include "Theme.h"

#include <QBoxLayout>
#include <QIcon>
#include <QLabel>

using namespace Qt::StringLiterals;

Hinter::Hinter()
    : Screen(u"Hinter"_s, u"Hintergrund"_s) {
    Picture1 = Layout::label(u"Picture1"_s, QString(), this);
    Picture1->setPixmap(Theme::icon(u"hinter"_s).pixmap(QSize(480, 300), devicePixelRatio()));
    Layout::column(this)->addWidget(Picture1);
}
