#include "Fangauswertung.h"

#include "Face.h"
#include "Heading.h"

#include <QBoxLayout>

Fangauswertung::Fangauswertung()
    : Screen(u"Fangauswertung"_qs, u"Fangauswertung"_qs) {
    Ueberschrift = new Heading(u"FANGAUSWERTUNG"_qs, this);
    Face::column(this, Ueberschrift, nullptr)->addStretch();
}
