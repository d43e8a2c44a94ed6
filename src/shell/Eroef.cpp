#include "Eroef.h"

#include "Layout.h"
#include "ProgressBar.h"
#include "Theme.h"

#include <QBoxLayout>
#include <QIcon>
#include <QLabel>

using namespace Qt::StringLiterals;

Eroef::Eroef()
    : Screen(u"Eroef"_s, u"Uferwart"_s) {
    standAlone();
    setWindowFlags(Qt::SplashScreen);
    Picture1 = Layout::label(u"Picture1"_s, QString(), this);
    Picture1->setPixmap(Theme::icon(u"eroef"_s).pixmap(QSize(480, 300), devicePixelRatio()));
    pb = new ProgressBar(u"pb"_s, this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(Picture1);
    column->addWidget(pb);
}
