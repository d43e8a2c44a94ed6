#include "Eroef.h"

using namespace Qt::StringLiterals;

Eroef::Eroef()
    : Screen(u"Eroef"_s, u"Uferwart"_s) {
    standAlone();
    setWindowFlags(Qt::SplashScreen);
    Layout::stack(this, {Picture1, pb});
}
