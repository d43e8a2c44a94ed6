#include "Eroef.h"

#include "Face.h"
#include "ProgressBar.h"
#include "Theme.h"

#include <QBoxLayout>
#include <QIcon>
#include <QLabel>

Eroef::Eroef()
    : Screen(u"Eroef"_qs, u"Uferwart"_qs) {
    standAlone();
    setWindowFlags(Qt::SplashScreen);
    Picture1 = Face::label(u"Picture1"_qs, QString(), this);
    Picture1->setPixmap(Theme::icon(u"eroef"_qs).pixmap(QSize(480, 300), devicePixelRatio()));
    pb = new ProgressBar(u"pb"_qs, this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(Picture1);
    column->addWidget(pb);
}
