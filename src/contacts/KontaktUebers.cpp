#include "KontaktUebers.h"

#include "Face.h"
#include "Heading.h"
#include "Toolbar.h"

#include <QBoxLayout>

KontaktUebers::KontaktUebers()
    : Screen(u"KontaktUebers"_qs, u"Kontakt - Übersicht"_qs) {
    Ueberschrift = new Heading(u"KONTAKT - ÜBERSICHT"_qs, this);
    Toolbar1 = new Toolbar(this);
    Face::column(this, Ueberschrift, Toolbar1)->addStretch();
}
