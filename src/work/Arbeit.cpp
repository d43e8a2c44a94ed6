#include "Arbeit.h"

#include "Face.h"
#include "Heading.h"

#include <QBoxLayout>

Arbeit::Arbeit()
    : Screen(u"Arbeit"_qs, u"Arbeitscontrolling - Name des Mitglieds -"_qs) {
    Ueberschrift = new Heading(u"ARBEITSCONTROLLING"_qs, this);
    Face::column(this, Ueberschrift, nullptr)->addStretch();
}
