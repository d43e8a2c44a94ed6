#include "Benutzer.h"

#include "Face.h"
#include "Heading.h"

#include <QBoxLayout>

Benutzer::Benutzer()
    : Screen(u"Benutzer"_qs, u"Benutzerverwaltung"_qs) {
    Ueberschrift = new Heading(u"BENUTZERVERWALTUNG"_qs, this);
    Face::column(this, Ueberschrift, nullptr)->addStretch();
}
