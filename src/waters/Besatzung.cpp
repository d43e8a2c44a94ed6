#include "Besatzung.h"

#include "Face.h"
#include "Heading.h"

#include <QBoxLayout>

Besatzung::Besatzung()
    : Screen(u"Besatzung"_qs, u"Besatz - Plan"_qs) {
    Ueberschrift = new Heading(u"BESATZ - PLAN"_qs, this);
    Face::column(this, Ueberschrift, nullptr)->addStretch();
}
