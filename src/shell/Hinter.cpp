#include "Hinter.h"

using namespace Qt::StringLiterals;

Hinter::Hinter()
    : Screen(u"Hinter"_s, u"Hintergrund"_s) {
    Layout::column(this)->addWidget(Picture1);
}
